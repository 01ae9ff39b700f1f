// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <cstddef>

/// Texts shown to the user, looked up by key in the user's language.
namespace brinemark
{

/// The key of a text. Made from literals only, so that a test can find every key in the sources.
struct TextKey {
    const char *key = "";

    constexpr TextKey() = default;
    template <std::size_t Length>
    constexpr TextKey(const char (&literal)[Length])
        : key(literal)
    {
    }
    friend constexpr TextKey operator""_key(const char *literal, std::size_t);

    [[nodiscard]] constexpr bool isEmpty() const { return *key == '\0'; }
};

constexpr TextKey operator""_key(const char *literal, std::size_t)
{
    TextKey key;
    key.key = literal;
    return key;
}

/// The string tables; each is a context of the compiled Qt Linguist files.
enum class TextTable {
    Default,  ///< "Default"
    Update,   ///< "QZUpdateStrings": the update checker
    Transfer, ///< "QZCURLTaskStrings": the transfer task
};

/// The text of a key in the first language of the user's chain that has it; the key itself when none has.
[[nodiscard]] QString text(TextKey key, TextTable table = TextTable::Default);
/// The items of a text that is a list, with a comma and a blank between them.
[[nodiscard]] QStringList textItems(TextKey key, TextTable table = TextTable::Default);
[[nodiscard]] bool hasText(TextKey key, TextTable table = TextTable::Default);

/// The text of a key read as a decimal number with a full stop, whatever the locale; 0 when it is missing or not a
/// number.
[[nodiscard]] double numberOfText(TextKey key, TextTable table = TextTable::Default);

/// Chooses the languages, best first ("de-AT" or "de_AT"); each is followed by its general form ("de"), and English is
/// the last. Without a call the system's languages are used.
void setTextLanguages(const QStringList &languages);

/// The chain in use, such as {"de_AT", "de", "en"}.
[[nodiscard]] QStringList textLanguages();

/// Replaces the first occurrence of each of "^0", "^1", "^2" ... by the value with that index. Placeholders inside a
/// value and placeholders without a value stay unchanged.
[[nodiscard]] QString fillPlaceholders(const QString &text, const QStringList &values);

/// Fills "%@" (text) and "%i" (whole number) in order of appearance; "%%" is a per-cent sign. A missing value gives an
/// empty text; surplus values are ignored; other sequences with a per-cent sign are copied unchanged.
[[nodiscard]] QString formatText(const QString &format, const QVariantList &values);

} // namespace brinemark
