// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;

namespace brinemark
{

class ElidedLabel;

/// The first line of a view: the view's title in bold, larger type, followed by the tank that it shows.
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
