// SPDX-License-Identifier: GPL-3.0-or-later

#include "calc/views/ConverterController.h"

#include "base/PreferenceKeys.h"
#include "calc/views/ConverterPanel.h"
#include "ui/Shell.h"
#include "ui/WindowPlacement.h"

namespace brinemark
{

ConverterController::ConverterController() = default;

ConverterController::~ConverterController() = default;

ConverterPanel &ConverterController::panel()
{
    if (!m_panel) {
        m_panel = new ConverterPanel(Shell::shared().mainWindow());
        m_panel->adjustSize();
        centreOnScreen(*m_panel);
        connect(m_panel, &ToolPanel::closedByUser, this, &ConverterController::windowWillClose);
    }
    return *m_panel;
}

bool ConverterController::isVisible() const
{
    return m_panel && m_panel->isVisible();
}

void ConverterController::toggleConverter()
{
    const bool show = !isVisible();
    if (show) {
        showInFront(panel());
    } else {
        m_panel->hide();
    }
    Preferences::shared().set(preference::convertVisible, show);
    Preferences::shared().flush();
}

void ConverterController::displayWithoutKey()
{
    panel().setAttribute(Qt::WA_ShowWithoutActivating);
    panel().show();
    panel().setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void ConverterController::windowWillClose()
{
    Preferences::shared().set(preference::convertVisible, false);
    Preferences::shared().flush();
}

} // namespace brinemark

#include "moc_ConverterController.cpp"
