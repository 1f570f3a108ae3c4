#pragma once

#include "context.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace ui {

// "Táctica": the club's systems in defence and attack, each with its diagram.
class TacticsScreen : public QWidget
{
    Q_OBJECT

public:
    explicit TacticsScreen(game::Context context, QWidget *parent = nullptr);

signals:
    void closeRequested();

private:
    void showSystems();

    game::Context m_context;
    QComboBox *m_defence;
    QComboBox *m_attack;
    QLabel *m_defenceDiagram;
    QLabel *m_attackDiagram;
};

} // namespace ui
