// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/toolbar/ToolbarConfiguration.h"

#include <QHash>
#include <QToolBar>

#include <functional>
#include <memory>
#include <vector>

namespace brinemark
{

/// The main window's toolbar: a row of items that the user may rearrange. It stores its configuration (items, display
/// mode, visibility) at every change and restores it when it is created. Its owner carries out the commands of the
/// items.
class MainToolBar : public QToolBar
{
    Q_OBJECT

public:
    /// Called with the identifier of the pressed item.
    using Trigger = std::function<void(const QString &identifier)>;
    /// Returns whether the item with this identifier is enabled.
    using Validator = std::function<bool(const QString &identifier)>;

    explicit MainToolBar(Trigger trigger, QWidget *parent = nullptr);

    /// The actions of all items that can be pressed, shown or not, by identifier. The toolbar owns them.
    [[nodiscard]] const QHash<QString, QAction *> &toolbarDictionary() const { return m_toolbarDictionary; }

    /// Enables or disables every item except customising, which is always enabled.
    void validate(const Validator &canTrigger);

    [[nodiscard]] const ToolbarConfiguration &configuration() const { return m_configuration; }
    /// Applies and stores a configuration; unusable items are removed from it first.
    void setConfiguration(ToolbarConfiguration configuration);

    /// Whether the user wants the toolbar to be visible. True even while the window is hidden.
    [[nodiscard]] bool isShown() const { return m_configuration.visible; }
    void setShown(bool shown);
    void toggle() { setShown(!isShown()); }

    /// Opens the sheet for rearranging the toolbar; if it is open already, brings it to the front.
    void customise();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void createToolbarDictionary();
    void rebuild();
    QAction *addSpacer(bool flexible);
    void dressButton(QAction *action);
    void save() const;

    Trigger m_trigger;
    ToolbarConfiguration m_configuration;
    QHash<QString, QAction *> m_toolbarDictionary;
    std::vector<std::unique_ptr<QAction>> m_fillers; ///< separators and spaces; created anew by every rebuild
};

} // namespace brinemark
