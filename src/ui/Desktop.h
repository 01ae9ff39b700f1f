// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUrl>

#include <functional>

class QWidget;

/// Access to the user's browser, mail program and file manager. All calls pass through here, so that tests can replace
/// the handler.
namespace brinemark::desktop
{

using UrlHandler = std::function<bool(const QUrl &)>;

/// Opens a web, mail or file address with the desktop's handler; false when there is none.
bool openUrl(const QUrl &url);

/// Opens the address as openUrl() does. When no handler exists, a sheet of `window` shows the address for use by hand.
bool openUrlFrom(QWidget *window, const QUrl &url);

/// Replaces the desktop's handler; an empty function restores it.
void setUrlHandler(UrlHandler handler);

/// A mailto address. Subject and body may hold any text.
[[nodiscard]] QUrl mailUrl(const QString &address, const QString &subject, const QString &body = {});

/// The user's e-mail address from the environment variable EMAIL; empty when it is not set.
[[nodiscard]] QString userMailAddress();

} // namespace brinemark::desktop
