// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Desktop.h"

#include "base/text/Texts.h"
#include "ui/Alerts.h"

#include <QDesktopServices>

namespace brinemark::desktop
{

namespace
{

UrlHandler &installedHandler()
{
    static UrlHandler handler;
    return handler;
}

QString percentEncoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

} // namespace

bool openUrl(const QUrl &url)
{
    const UrlHandler &handler = installedHandler();
    return handler ? handler(url) : QDesktopServices::openUrl(url);
}

bool openUrlFrom(QWidget *window, const QUrl &url)
{
    if (openUrl(url))
        return true;
    const bool mail = url.scheme() == u"mailto";
    const QString address = mail ? url.path() : url.toString();
    beginAlertSheet(window,
                    {AlertStyle::Critical,
                     text(mail ? "NoMailProgramTitle"_key : "NoBrowserTitle"_key),
                     fillPlaceholders(text(mail ? "NoMailProgramMessage"_key : "NoBrowserMessage"_key), {address}),
                     {},
                     {},
                     {}});
    return false;
}

void setUrlHandler(UrlHandler handler)
{
    installedHandler() = std::move(handler);
}

QUrl mailUrl(const QString &address, const QString &subject, const QString &body)
{
    QString text = QStringLiteral("mailto:") + address + QStringLiteral("?subject=") + percentEncoded(subject);
    if (!body.isEmpty())
        text += QStringLiteral("&body=") + percentEncoded(body);
    return QUrl(text);
}

QString userMailAddress()
{
    return qEnvironmentVariable("EMAIL");
}

} // namespace brinemark::desktop
