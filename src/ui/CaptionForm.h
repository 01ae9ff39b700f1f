// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QWidget;

namespace brinemark
{

/// Captions are stored with the blank or colon that they need in running text; a form shows them without blanks.
[[nodiscard]] QLabel *makeCaption(const QString &text, QWidget *parent = nullptr);

/// A read-only value beside a caption: plain text that wraps and can be selected and copied.
[[nodiscard]] QLabel *makeValue(const QString &objectName = {}, QWidget *parent = nullptr);

/// Puts a caption and what it names into a row of a grid that has a caption column left of every value column.
void addCaptioned(QGridLayout &grid, int row, int column, const QString &caption, QWidget *value);

} // namespace brinemark
