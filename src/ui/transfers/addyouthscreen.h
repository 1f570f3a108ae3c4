#pragma once

#include "context.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QScrollBar;

namespace ui {

// "Añadir Jugadores Juveniles": adds a young player to the pool from which any career can
// later sign him. The screen stays open for the next youth.
class AddYouthScreen : public QDialog
{
    Q_OBJECT

public:
    explicit AddYouthScreen(game::Context context, QWidget *parent = nullptr);

    static const QStringList &countries();

private:
    void add();
    void reset();

    game::Context m_context;
    QLineEdit *m_nombre;
    QLineEdit *m_apellidos;
    QComboBox *m_position;
    QComboBox *m_country;
    QLineEdit *m_edad;
    QLineEdit *m_dorsal;
    QScrollBar *m_edadBar;
    QScrollBar *m_dorsalBar;
};

} // namespace ui
