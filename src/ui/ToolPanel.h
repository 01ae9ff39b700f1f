// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

namespace brinemark
{

/// A small floating panel that stays above its window. Escape closes it like the title bar's button; hiding it by the
/// program is not closing.
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
