// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the targets that build the precompiled headers. The program does nothing.
int main()
{
    return 0;
}
