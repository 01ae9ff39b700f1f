# SPDX-License-Identifier: GPL-3.0-or-later
"""Shared by the scripts that write tank files: the file's form, dates, and small drawn pictures."""
