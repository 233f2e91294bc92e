// SPDX-License-Identifier: GPL-3.0-or-later
// The program that owns the tests' precompiled headers; it does nothing.
int main()
{
    return 0;
}
