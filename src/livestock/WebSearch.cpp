// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/WebSearch.h"

namespace brinemark
{

namespace
{

constexpr const char *searchHost = "https://www.google.com/";

/// The words in encoded double quotes.
QByteArray quoted(const QString &words)
{
    return "%22" + QUrl::toPercentEncoding(words, " ").replace(' ', '+') + "%22";
}

QUrl searchUrl(const QByteArray &pathAndQuery)
{
    return QUrl::fromEncoded(searchHost + pathAndQuery, QUrl::StrictMode);
}

QByteArray eitherName(const QString &name, const QString &sciName)
{
    return quoted(name) + "+OR+" + quoted(sciName);
}

} // namespace

QUrl webSearchUrl(const QString &text)
{
    return searchUrl("search?q=" + quoted(text));
}

QUrl speciesSearchUrl(const QString &name, const QString &sciName)
{
    return searchUrl("search?q=" + eitherName(name, sciName));
}

QUrl speciesImageSearchUrl(const QString &name, const QString &sciName)
{
    return searchUrl("images?q=" + eitherName(name, sciName));
}

} // namespace brinemark
