// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"
#include "ui/MainViewController.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

namespace brinemark
{

class Container;
class EmptyState;
class TitleLine;

/// The view of one of a tank's livestock groups: fish, plants, invertebrates or corals. The view's object name is
/// "fishView".
class LivestockGroupController : public MainViewController,
                                 public Shared<LivestockGroupController>,
                                 private ModelObserver
{
    Q_OBJECT

public:
    ~LivestockGroupController() override;

    /// Sets the group to show: one of the four livestock containers, or null for none.
    void setContainer(Container *container);

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    void newEntry() override; ///< adds a new record of the group's kind
    void updateDisplay() override;

private:
    friend class Shared<LivestockGroupController>;
    LivestockGroupController();

    [[nodiscard]] Container *container() const;
    void livestockChanged(Tank &tank, ContainerKind kind) override;

    std::weak_ptr<Tank> m_tank;
    ContainerKind m_kind = ContainerKind::Fish;
    TitleLine *m_titleLine = nullptr;
    EmptyState *m_group = nullptr;
    OwnedWidget<QWidget> m_view;
};

} // namespace brinemark
