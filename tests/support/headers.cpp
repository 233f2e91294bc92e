// SPDX-License-Identifier: GPL-3.0-or-later
// A program that owns precompiled headers of the tests; it does nothing.
int main()
{
    return 0;
}
