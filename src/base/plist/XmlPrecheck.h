// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace brinemark::plist
{

/// What has to be known of an XML text before pugixml parses it, and what pugixml lets pass although it is not XML.
struct XmlPrecheck {
    /// Comments, character data sections or processing instructions stand in the text, so that white space between
    /// pieces of a string matters.
    bool hasInnerMarkup = false;
    /// Why the text is not well formed: a zero byte, a stray ampersand, an unknown entity, a reference to no character.
    QString error;
};

/// Looks through valid UTF-8; costs a small part of the parse.
XmlPrecheck precheckXml(std::string_view text);

/// The encoding that the XML declaration names; empty when it names none.
std::string_view declaredEncoding(std::string_view text);

} // namespace brinemark::plist
