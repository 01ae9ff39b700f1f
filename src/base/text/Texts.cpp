// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/Texts.h"

#include "base/Log.h"

#include <QFile>
#include <QLocale>
#include <QMutex>
#include <QTranslator>

#include <cmath>
#include <memory>
#include <optional>
#include <vector>

namespace brinemark
{

namespace
{

constexpr const char *contextName(TextTable table)
{
    switch (table) {
    case TextTable::Update:
        return "QZUpdateStrings";
    case TextTable::Transfer:
        return "QZCURLTaskStrings";
    case TextTable::Default:
        break;
    }
    return "Default";
}

QStringList languageChain(const QStringList &languages)
{
    QStringList chain;
    const auto append = [&chain](const QString &language) {
        if (!language.isEmpty() && !chain.contains(language))
            chain.append(language);
    };
    for (QString language : languages) {
        QStringList parts = language.replace(QLatin1Char('-'), QLatin1Char('_')).split(QLatin1Char('_'));
        // Drop the script ("en_Latn_US"): no string table is specific to one.
        if (parts.size() > 1 && parts.at(1).size() == 4)
            parts.removeAt(1);
        for (; !parts.isEmpty(); parts.removeLast())
            append(parts.join(QLatin1Char('_')));
    }
    append(QStringLiteral("en"));
    return chain;
}

/// The tables of the chosen languages. They are not installed in the application object, so that they do not affect the
/// toolkit's own texts.
class Tables
{
public:
    void choose(const QStringList &languages)
    {
        const QMutexLocker lock(&m_mutex);
        load(languages);
    }

    QStringList chain()
    {
        const QMutexLocker lock(&m_mutex);
        ensureLoaded();
        return m_chain;
    }

    std::optional<QString> find(TextKey key, TextTable table)
    {
        if (key.isEmpty())
            return std::nullopt;
        const QMutexLocker lock(&m_mutex);
        ensureLoaded();
        for (const auto &language : m_tables) {
            const QString found = language->translate(contextName(table), key.key);
            if (!found.isNull())
                return found;
        }
        return std::nullopt;
    }

private:
    void ensureLoaded()
    {
        if (m_chain.isEmpty())
            load(QLocale::system().uiLanguages());
    }

    void load(const QStringList &languages)
    {
        m_chain = languageChain(languages);
        m_tables.clear();
        for (const QString &language : std::as_const(m_chain)) {
            const QString file = QStringLiteral(":/texts/brinemark_%1.qm").arg(language);
            if (!QFile::exists(file))
                continue;
            auto table = std::make_unique<QTranslator>();
            if (table->load(file))
                m_tables.push_back(std::move(table));
            else
                qCWarning(logApp) << "Unreadable string table" << file;
        }
    }

    QMutex m_mutex;
    QStringList m_chain;
    std::vector<std::unique_ptr<QTranslator>> m_tables;
};

/// The number that "%i" shows: truncated, 0 for a value that is not a number.
qint64 wholeNumber(const QVariant &value)
{
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float)
        return value.toLongLong();
    const double number = value.toDouble();
    return std::abs(number) < 9e18 ? qint64(number) : 0;
}

Tables &tables()
{
    static Tables shared;
    return shared;
}

} // namespace

QString text(TextKey key, TextTable table)
{
    return tables().find(key, table).value_or(QString::fromUtf8(key.key));
}

QStringList textItems(TextKey key, TextTable table)
{
    return text(key, table).split(QStringLiteral(", "));
}

bool hasText(TextKey key, TextTable table)
{
    return tables().find(key, table).has_value();
}

double numberOfText(TextKey key, TextTable table)
{
    bool isNumber = false;
    const double number = tables().find(key, table).value_or(QString()).trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0.0;
}

void setTextLanguages(const QStringList &languages)
{
    tables().choose(languages);
}

QStringList textLanguages()
{
    return tables().chain();
}

QString fillPlaceholders(const QString &text, const QStringList &values)
{
    std::vector<bool> filled(std::size_t(values.size()), false);
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('^') && i + 1 < text.size()) {
            const int place = text.at(i + 1).unicode() - u'0';
            if (place >= 0 && place <= 9 && place < values.size() && !filled[std::size_t(place)]) {
                filled[std::size_t(place)] = true;
                result += values.at(place);
                ++i;
                continue;
            }
        }
        result += text.at(i);
    }
    return result;
}

QString formatText(const QString &format, const QVariantList &values)
{
    QString result;
    result.reserve(format.size());
    qsizetype next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar kind = format.at(i) == QLatin1Char('%') && i + 1 < format.size() ? format.at(i + 1) : QChar();
        if (kind == QLatin1Char('%')) {
            result += kind;
        } else if (kind == QLatin1Char('@') || kind == QLatin1Char('i')) {
            const QVariant value = values.value(next++);
            if (kind == QLatin1Char('@'))
                result += value.toString();
            else if (value.isValid())
                result += QString::number(wholeNumber(value));
        } else {
            result += format.at(i);
            continue;
        }
        ++i;
    }
    return result;
}

} // namespace brinemark
