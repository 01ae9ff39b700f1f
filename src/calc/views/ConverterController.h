// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

namespace brinemark
{

class ConverterPanel;

/// Shows and hides the unit converter, a floating panel whose object name is "convertWindow".
class ConverterController : public QObject, public Shared<ConverterController>
{
    Q_OBJECT

public:
    ~ConverterController() override;

    void toggleConverter();   ///< shows or hides the panel and stores in the preferences whether it is visible
    void displayWithoutKey(); ///< shows the panel without giving it the focus
    [[nodiscard]] bool isVisible() const;

private:
    friend class Shared<ConverterController>;
    ConverterController();

    ConverterPanel &panel();
    void windowWillClose();

    OwnedWidget<ConverterPanel> m_panel;
};

} // namespace brinemark
