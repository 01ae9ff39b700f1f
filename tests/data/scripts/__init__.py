# SPDX-License-Identifier: GPL-3.0-or-later
"""The tank files that the tests read: good ones, older ones and broken ones."""
