# SPDX-License-Identifier: GPL-3.0-or-later
"""The content of the sample tank file: two tanks over two years."""
