// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/HelpBook.h"

#include "base/text/Texts.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

namespace brinemark::helpbook
{

namespace
{

constexpr const char *startPage = "start.html";

QString folderOf(const QString &language)
{
    return QStringLiteral(":/help/") + language;
}

/// The first of the user's languages that has pages.
QString bookLanguage()
{
    for (const QString &language : textLanguages()) {
        if (QFile::exists(folderOf(language) + u'/' + QLatin1String(startPage)))
            return language;
    }
    return QStringLiteral("en");
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The words that the user's languages have in place of those in the pages.
QHash<QString, QString> wordsFor(const QString &language)
{
    QHash<QString, QString> words;
    for (const QString &own : textLanguages()) {
        if (own == language)
            break;
        const QString list = contentOf(folderOf(own) + QStringLiteral("/words.txt"));
        for (const QString &line : list.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList pair = line.split(u'=');
            if (pair.size() == 2 && !words.contains(pair.first()))
                words.insert(pair.first(), pair.last());
        }
    }
    return words;
}

/// The file name of the page in which a heading or row has this id; empty when there is none.
QString pageWithId(const QString &id)
{
    const QRegularExpression mark(QStringLiteral("(?:id|name)=\"%1\"").arg(QRegularExpression::escape(id)));
    const QDir folder(folderOf(bookLanguage()));
    for (const QString &name : folder.entryList({QStringLiteral("*.html")}, QDir::Files)) {
        if (mark.match(contentOf(folder.filePath(name))).hasMatch())
            return name;
    }
    return {};
}

QUrl urlOfPage(const QString &fileName, const QString &fragment = {})
{
    QUrl url(QStringLiteral("qrc") + folderOf(bookLanguage()) + u'/' + fileName);
    if (!fragment.isEmpty())
        url.setFragment(fragment);
    return url;
}

} // namespace

QString page(const QString &fileName)
{
    const QString language = bookLanguage();
    const QString content = contentOf(folderOf(language) + u'/' + fileName);
    const QHash<QString, QString> words = wordsFor(language);
    if (words.isEmpty())
        return content;
    static const QRegularExpression tagOrWord(QStringLiteral("<[^>]*>|\\w+"));
    QString result;
    qsizetype copied = 0;
    for (auto matches = tagOrWord.globalMatch(content); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const auto own = words.constFind(match.captured());
        if (own == words.constEnd())
            continue;
        result += content.mid(copied, match.capturedStart() - copied) + *own;
        copied = match.capturedEnd();
    }
    return result + content.mid(copied);
}

QUrl urlOfAnchor(const QString &anchor)
{
    const QString name = anchor + QStringLiteral(".html");
    if (!anchor.isEmpty() && !anchor.contains(u'/') && QFile::exists(folderOf(bookLanguage()) + u'/' + name))
        return urlOfPage(name);
    const QString found = anchor.isEmpty() ? QString() : pageWithId(anchor);
    return found.isEmpty() ? urlOfPage(QLatin1String(startPage)) : urlOfPage(found, anchor);
}

} // namespace brinemark::helpbook
