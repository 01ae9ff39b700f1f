// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/calendar/FadeOut.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QStyle>

namespace brinemark
{

void fadeOut(QWidget &window, QWidget *parent)
{
    constexpr int milliseconds = 120;
    if (window.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &window) == 0)
        return;
    auto *picture = new QLabel(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                                           Qt::WindowDoesNotAcceptFocus);
    picture->setObjectName("fadingCalendar");
    picture->setAttribute(Qt::WA_ShowWithoutActivating);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture->setPixmap(window.grab());
    picture->setGeometry(window.geometry());
    picture->show();

    auto *fading = new QPropertyAnimation(picture, "windowOpacity", picture);
    fading->setDuration(milliseconds);
    fading->setStartValue(1.0);
    fading->setEndValue(0.0);
    QObject::connect(fading, &QAbstractAnimation::finished, picture, &QObject::deleteLater);
    fading->start();
}

} // namespace brinemark
