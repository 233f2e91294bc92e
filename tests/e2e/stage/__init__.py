# SPDX-License-Identifier: GPL-3.0-or-later
"""A virtual desktop, a person who sits before it, and the program that the person uses."""
