// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/LivestockGroupController.h"

#include "livestock/LivestockGroup.h"
#include "livestock/views/FishDataEntryController.h"
#include "model/Tank.h"
#include "ui/EmptyState.h"
#include "ui/Icons.h"
#include "ui/TitleLine.h"

#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace brinemark
{

LivestockGroupController::LivestockGroupController() = default;

LivestockGroupController::~LivestockGroupController() = default;

void LivestockGroupController::setContainer(Container *container)
{
    const bool livestock = container && container->traits().isLivestock();
    m_tank = livestock ? container->tank()->weak_from_this() : std::weak_ptr<Tank>();
    if (livestock)
        m_kind = container->kind();
    updateDisplay();
}

Container *LivestockGroupController::container() const
{
    const std::shared_ptr<Tank> tank = m_tank.lock();
    return tank ? tank->container(m_kind) : nullptr;
}

QWidget *LivestockGroupController::view()
{
    if (!m_view) {
        m_view = new QWidget;
        m_view->setObjectName(QStringLiteral("fishView"));
        m_titleLine = new TitleLine;
        m_group = new EmptyState({}, {});
        auto *column = new QVBoxLayout(m_view);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(m_titleLine);
        column->addWidget(m_group, 1);
        connect(m_group, &EmptyState::addRequested, this, &LivestockGroupController::newEntry);
        updateDisplay();
    }
    return m_view;
}

void LivestockGroupController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    view();
    QWidget::setTabOrder(tankTree, m_group->button());
    QWidget::setTabOrder(m_group->button(), helpButton);
    updateDisplay();
}

void LivestockGroupController::updateDisplay()
{
    if (!m_view)
        return;
    const Container *list = container();
    m_group->setVisible(list);
    m_titleLine->setTitle(list ? list->name() : QString());
    m_titleLine->setSecondary(list ? list->tank()->name : QString());
    if (!list)
        return;
    const LivestockGroupTraits &traits = *livestockGroupTraits(m_kind);
    const QLocale locale;
    m_group->setPicture(icon(traits.picture));
    m_group->setSentence(list->isEmpty() ? text(traits.emptyKey)
                                         : text("GroupEntries") + locale.toString(list->count()) + QChar::LineFeed +
                                               text("GroupSpecimens") + locale.toString(specimenCount(*list)));
    m_group->setButtonText(text(traits.addKey));
}

void LivestockGroupController::newEntry()
{
    if (container())
        FishDataEntryController::sharedInstance().displayItemData(nullptr, traitsOf(m_kind).itemContext);
}

void LivestockGroupController::livestockChanged(Tank &tank, ContainerKind kind)
{
    if (kind == m_kind && m_tank.lock().get() == &tank)
        updateDisplay();
}

} // namespace brinemark

#include "moc_LivestockGroupController.cpp"
