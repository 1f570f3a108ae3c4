#pragma once

#include "common/page.h"
#include "context.h"

class QComboBox;
class QLabel;

namespace ui {

// "Táctica": the club's systems in defence and attack, each with its diagram.
class TacticsScreen : public Page
{
    Q_OBJECT

public:
    explicit TacticsScreen(game::Context context, QWidget *parent = nullptr);

private:
    void showSystems();

    game::Context m_context;
    QComboBox *m_defence;
    QComboBox *m_attack;
    QLabel *m_defenceDiagram;
    QLabel *m_attackDiagram;
};

} // namespace ui
