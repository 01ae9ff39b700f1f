# SPDX-License-Identifier: GPL-3.0-or-later
"""What the scripts that write tank files share: the file's form, dates, and small drawn pictures."""
