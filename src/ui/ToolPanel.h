// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

namespace brinemark
{

/// A small floating panel that stays above its window. Escape and the title bar's button close it; hiding it from code
/// does not count as closing.
class ToolPanel : public QDialog
{
    Q_OBJECT

public:
    explicit ToolPanel(QWidget *parent);

    void reject() override;

Q_SIGNALS:
    void closedByUser();

protected:
    void closeEvent(QCloseEvent *event) override;
};

} // namespace brinemark
