#pragma once

#include "career/career.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace ui {

class CrestButton;

// "Comenzar Liga Manager": the manager's name and the club he takes over.
class NewCareerScreen : public QDialog
{
    Q_OBJECT

public:
    explicit NewCareerScreen(game::Career &career, QWidget *parent = nullptr);

    // The nationalities offered; the choice is only shown, the game keeps it nowhere.
    static const QStringList &nationalities();

signals:
    void careerStarted();

private:
    void chooseClub(int clubId, const QString &caption);
    void proceed();

    game::Career &m_career;
    int m_clubId = 0;
    QLineEdit *m_nombre;
    QLineEdit *m_apellidos;
    QComboBox *m_nationality;
    QLabel *m_hovered;
    QLabel *m_chosen;
    QList<CrestButton *> m_crests;
};

} // namespace ui
