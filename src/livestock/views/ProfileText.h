// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileTabStops.h"

#include <QTextCharFormat>
#include <QTextEdit>

#include <vector>

namespace brinemark
{

enum class ProfileStyle { Header, SubHeader, Label, Normal };

/// A read-only text of captions and values in two columns, which can be selected and copied. Its lines are not wrapped:
/// a value that does not fit is cut off with an ellipsis and has a tool tip; copying gives the whole value. No text is
/// read as markup.
class ProfileText : public QTextEdit
{
    Q_OBJECT

public:
    explicit ProfileText(QWidget *parent = nullptr);

    // To show another text: clear it, add the columns, then show them.
    void clearColumns();
    /// A line of its own, or the beginning of one that addSecondColumn() ends. Without a label there are no tabs; line
    /// breaks in the value then make more lines.
    void addFirstColumn(const QString &value, const QString &label, ProfileStyle style, bool newLine, bool toolTip);
    void addSecondColumn(const QString &value, const QString &label, ProfileStyle style);
    void showColumns();

    [[nodiscard]] QTextCharFormat attributes(ProfileStyle style) const; ///< font and colour
    /// The tab stops of the text on screen, the distance of its lines, and that they are not wrapped.
    [[nodiscard]] QTextBlockFormat tabStopAttributes() const;

    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 80}; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;

private:
    struct Entry {
        QString label;
        QString value;
        ProfileStyle style;
        bool second;  ///< in the second column
        bool newLine; ///< nothing follows it on its line
        bool toolTip; ///< has its value as tool tip even when it fits
    };
    [[nodiscard]] ProfileWidths widths() const;
    [[nodiscard]] int roomFor(const Entry &entry) const;
    void insert(QTextCursor &cursor, const Entry &entry) const;

    std::vector<Entry> m_entries;
    ProfileTabStops m_stops;
    int m_laidOutWidth = -1;
};

} // namespace brinemark
