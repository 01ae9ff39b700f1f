// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;

namespace brinemark
{

class ElidedLabel;

/// The line with which a view begins: what it is, in bold and larger, and beside it of which tank.
class TitleLine : public QWidget
{
    Q_OBJECT

public:
    explicit TitleLine(const QString &title = {}, const QString &secondary = {}, QWidget *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString secondary() const;
    void setTitle(const QString &title);
    void setSecondary(const QString &secondary);

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyLook();

    ElidedLabel *m_title;
    ElidedLabel *m_secondary;
};

} // namespace brinemark
