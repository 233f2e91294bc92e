# SPDX-License-Identifier: GPL-3.0-or-later
"""The guided tour, a file for each chapter."""
