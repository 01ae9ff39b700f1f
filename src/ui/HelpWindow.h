// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QUrl;

namespace brinemark
{

/// Shows the help at an anchor: a page's name ("conditions") or the id of any heading ("targets"). An unknown or empty
/// anchor shows the start page.
void showHelp(const QString &anchor = {});

/// Lets the desktop's help key (F1) show the help at an anchor while `window` is active.
void showHelpOnKey(QWidget *window, const QString &anchor);

/// The help window: the pages of the help book.
class HelpWindow : public QWidget, public Shared<HelpWindow>
{
    Q_OBJECT
    friend class Shared<HelpWindow>;
    HelpWindow();

public:
    void showAnchor(const QString &anchor);

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow(const QUrl &url);
    void find(bool backward);
    void findFromStart();
    void markMatches();
    void applyStyle();
    void buildButtons();

    QTextBrowser *m_browser;
    QLineEdit *m_findField;
    QLabel *m_findResult;
};

} // namespace brinemark
