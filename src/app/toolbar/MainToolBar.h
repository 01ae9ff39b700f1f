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

/// The main window's toolbar: a row of known items that the user may rearrange. It remembers its configuration (items,
/// display mode, shown or not) with every change and takes it up again when it is made; what its items do is the
/// owner's.
class MainToolBar : public QToolBar
{
    Q_OBJECT

public:
    /// Called with the identifier of the item that was pressed.
    using Trigger = std::function<void(const QString &identifier)>;
    /// Answers whether the item of this identifier can be pressed now.
    using Validator = std::function<bool(const QString &identifier)>;

    explicit MainToolBar(Trigger trigger, QWidget *parent = nullptr);

    /// Every item that can be pressed, shown or not, by identifier. The toolbar owns the actions.
    [[nodiscard]] const QHash<QString, QAction *> &toolbarDictionary() const { return m_toolbarDictionary; }

    /// Enables or disables every item; customising stays possible always.
    void validate(const Validator &canTrigger);

    [[nodiscard]] const ToolbarConfiguration &configuration() const { return m_configuration; }
    /// Shows the configuration (reduced to what is usable) and remembers it.
    void setConfiguration(ToolbarConfiguration configuration);

    /// Whether the user wants the toolbar, even while its window is hidden.
    [[nodiscard]] bool isShown() const { return m_configuration.visible; }
    void setShown(bool shown);
    /// Shows the toolbar when it is hidden and hides it otherwise.
    void toggle() { setShown(!isShown()); }

    /// Opens the sheet that rearranges the toolbar; a second call brings the open one to the front.
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
    std::vector<std::unique_ptr<QAction>> m_fillers; ///< separators and spaces: made anew with every arrangement
};

} // namespace brinemark
