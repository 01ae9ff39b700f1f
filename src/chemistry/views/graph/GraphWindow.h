// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QVBoxLayout;

namespace brinemark
{

/// The sheet of the graph (object name "graphWindow"). It holds one of two contents at a time: a form of fixed size, or
/// the graph's layout, which can be resized and keeps its size while the program runs.
class GraphWindow : public QDialog
{
    Q_OBJECT

public:
    /// Takes ownership of both views.
    GraphWindow(QWidget *parent, QWidget *dateContentView, QWidget *graphContentView);

    void showDates();
    void showGraph();
    [[nodiscard]] bool isGraphShown() const { return m_graphShown; }

private:
    void showContent(QWidget *content, QWidget *other);

    QVBoxLayout *m_place;
    QWidget *m_dateContentView;
    QWidget *m_graphContentView;
    QSize m_graphSize;
    bool m_graphShown = false;
};

} // namespace brinemark
