// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUrl>

#include <functional>

class QWidget;

/// The way out of the program to the user's browser, mail program and file manager. One seam: tests put a recorder
/// here.
namespace brinemark::desktop
{

using UrlHandler = std::function<bool(const QUrl &)>;

/// Opens a web, mail or file address with the desktop's handler; false when there is none.
bool openUrl(const QUrl &url);

/// The same for a window, which tells the user in a sheet when there is no handler, with the address to use by hand.
bool openUrlFrom(QWidget *window, const QUrl &url);

/// Replaces the desktop's handler; an empty function brings it back.
void setUrlHandler(UrlHandler handler);

/// A mailto address. Subject and body may hold any text.
[[nodiscard]] QUrl mailUrl(const QString &address, const QString &subject, const QString &body = {});

/// The e-mail address that the user's environment names ("EMAIL"); empty when there is none.
[[nodiscard]] QString userMailAddress();

} // namespace brinemark::desktop
