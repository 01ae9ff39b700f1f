#pragma once

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace brinemark
{

/// The floating panel with the unit converter. Object names: "convertWindow", "typePopup", "convertPopup",
/// "convertValueField", "convertResultField".
class ConverterPanel : public QDialog
{
    Q_OBJECT

public:
    explicit ConverterPanel(QWidget *parent);

Q_SIGNALS:
    void closedByUser();

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override; ///< Escape closes like the title bar's button

private:
    void typePopupAction();
    void convertTypesAction();

    QComboBox *m_typePopup;
    QComboBox *m_convertPopup;
    QLineEdit *m_convertValueField;
    QLineEdit *m_convertResultField;
};

} // namespace brinemark
