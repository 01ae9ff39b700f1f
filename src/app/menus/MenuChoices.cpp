// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MenuChoices.h"

#include "app/documents/RecentFiles.h"
#include "base/text/Texts.h"
#include "ui/MainViewController.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace brinemark
{

namespace
{

QString withoutMnemonic(QString title)
{
    return title.replace(u'&', QStringLiteral("&&"));
}

std::vector<MenuChoice> recentFileChoices()
{
    std::vector<MenuChoice> choices;
    const QStringList files = recentFiles();
    const QStringList names = namesOfFiles(files);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const qsizetype digit = (i + 1) % 10; // the tenth has the 0
        choices.push_back({.title = QStringLiteral("&%1  ").arg(digit) + withoutMnemonic(names[i]),
                           .argument = files[i],
                           .toolTip = QDir::toNativeSeparators(files[i]),
                           .enabled = QFileInfo(files[i]).isFile()});
    }
    return choices;
}

/// Gives each title a mnemonic letter of its own, as long as there are letters enough. A title takes its first free
/// letter; where it has none, the owner of one of its letters moves to another.
class Mnemonics
{
public:
    explicit Mnemonics(std::vector<MenuChoice> &choices)
        : m_choices(choices)
    {
        for (std::size_t i = 0; i < choices.size(); ++i) {
            QString tried;
            findLetter(i, tried);
        }
    }

    void insert() const
    {
        for (auto it = m_owners.begin(); it != m_owners.end(); ++it) {
            QString &title = m_choices[it.value()].title;
            title.insert(title.indexOf(it.key(), 0, Qt::CaseInsensitive), u'&');
        }
    }

private:
    bool findLetter(std::size_t choice, QString &tried)
    {
        QString owned;
        for (const QChar letter : m_choices[choice].title.toLower()) {
            if (!letter.isLetter() || tried.contains(letter))
                continue;
            if (!m_owners.contains(letter)) {
                m_owners.insert(letter, choice);
                return true;
            }
            owned += letter;
        }
        return std::any_of(owned.begin(), owned.end(), [&](QChar letter) {
            if (tried.contains(letter))
                return false;
            tried += letter;
            const bool freed = findLetter(m_owners.value(letter), tried);
            if (freed)
                m_owners.insert(letter, choice);
            return freed;
        });
    }

    std::vector<MenuChoice> &m_choices;
    QHash<QChar, std::size_t> m_owners; ///< the choice that has this letter
};

std::vector<MenuChoice> columnChoices(const MainViewController *list)
{
    const std::optional<SortOrder> order = list ? list->sortOrder() : std::nullopt;
    if (!order)
        return {};
    std::vector<MenuChoice> choices;
    for (const auto &[identifier, title] : list->sortColumns())
        choices.push_back({.title = title, .argument = identifier, .checked = identifier == order->identifier});
    Mnemonics(choices).insert();
    return choices;
}

} // namespace

std::vector<MenuChoice> menuChoices(Command command, const MainViewController *list)
{
    switch (command) {
    case Command::OpenRecent:
        return recentFileChoices();
    case Command::SortBy:
        return columnChoices(list);
    default:
        return {};
    }
}

} // namespace brinemark
