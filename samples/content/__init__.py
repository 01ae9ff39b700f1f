# SPDX-License-Identifier: GPL-3.0-or-later
"""What the sample tank file tells: two tanks, two years."""
