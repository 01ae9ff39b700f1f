// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace brinemark::plist
{

/// The result of checking an XML text before pugixml parses it: facts that decide how to parse, and errors that pugixml
/// does not report.
struct XmlPrecheck {
    /// The text contains comments, CDATA sections or processing instructions, so that white space between pieces of a
    /// string matters.
    bool hasInnerMarkup = false;
    /// Why the text is not well formed: a zero byte, a stray ampersand, an unknown entity, a reference to no character.
    QString error;
};

/// Checks a text, which must be valid UTF-8, in a small part of the time that parsing takes.
XmlPrecheck precheckXml(std::string_view text);

/// The encoding that the XML declaration names; empty when it names none.
std::string_view declaredEncoding(std::string_view text);

} // namespace brinemark::plist
