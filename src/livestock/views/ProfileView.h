// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

#include "livestock/ProfileFields.h"

class QLabel;
class QPushButton;
class QScrollArea;

namespace brinemark
{

class PictureView;
class TitleLine;

/// A livestock record on one page: names and picture at the top, then the profile in two columns, then the notes.
/// Object names: "fishDataView", each value by its key ("tankLevel" ...), "editButton".
class ProfileView : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileView(QWidget *parent = nullptr);

    void showItem(const ItemData *item); ///< null shows an empty page
    [[nodiscard]] QWidget *scrollArea() const;
    [[nodiscard]] QPushButton *editButton() const { return m_editButton; }

private:
    QWidget *makePage();

    TitleLine *m_titleLine;
    QScrollArea *m_scrollArea;
    PictureView *m_picture;
    QLabel *m_name;
    QLabel *m_sciName;
    QLabel *m_family;
    std::array<QLabel *, profileFields.size()> m_values{};
    QLabel *m_notes;
    QPushButton *m_editButton;
};

} // namespace brinemark
