// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

class QTextCursor;

namespace brinemark
{

enum class TextStyle {
    Caption, ///< bold
    Value,
};

/// A text in which captions stand out from values: for the screen, for paper and, without its styles, for a text file.
/// What a person wrote is never read as markup.
class StyledText
{
public:
    struct Run {
        TextStyle style;
        QString text;
        friend bool operator==(const Run &, const Run &) = default;
    };

    /// Adds text at the end; a text in the style of the last run makes that run longer, an empty one changes nothing.
    void append(TextStyle style, const QString &text);

    [[nodiscard]] const std::vector<Run> &runs() const { return m_runs; }
    [[nodiscard]] QString plainText() const;

    /// Inserts the text at a cursor of a document, in the system's font at 10 points.
    void insertAt(QTextCursor &cursor) const;

private:
    std::vector<Run> m_runs;
};

} // namespace brinemark
