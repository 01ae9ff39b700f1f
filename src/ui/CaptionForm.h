// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QWidget;

namespace brinemark
{

/// A caption in bold. The stored texts may carry the spaces or the colon that running text needs; the spaces are
/// trimmed.
[[nodiscard]] QLabel *makeCaption(const QString &text, QWidget *parent = nullptr);

/// Makes a caption name a control, for its shortcut and for screen readers.
void setCaptionOf(QWidget *control, QLabel *caption);

/// A read-only value beside a caption: plain text that wraps and can be selected and copied.
[[nodiscard]] QLabel *makeValue(const QString &objectName = {}, QWidget *parent = nullptr);

/// Adds a caption and the value it names to a grid row; each value column has a caption column to its left.
void addCaptioned(QGridLayout &grid, int row, int column, const QString &caption, QWidget *value);

} // namespace brinemark
