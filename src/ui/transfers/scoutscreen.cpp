#include "scoutscreen.h"

#include "league/leagueclubs.h"
#include "common/theme.h"
#include "playergrid.h"
#include "transfers/market.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace ui {

namespace {

const QString kAnyPosition = QStringLiteral("TODOS");

QLineEdit *nameBox(const char *name)
{
    auto *box = new QLineEdit;
    box->setObjectName(QString::fromLatin1(name));
    box->setMaxLength(50);
    return box;
}

// A rating or an age: digits only, "0" (any) at first and whenever it is left empty. Four
// digits at most, since the game reads the box as a small whole number.
QLineEdit *numberBox(const char *name)
{
    auto *box = new QLineEdit(QStringLiteral("0"));
    box->setObjectName(QString::fromLatin1(name));
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), box));
    box->setMaxLength(4);
    box->setFixedWidth(70);
    box->setAlignment(Qt::AlignCenter);
    QObject::connect(box, &QLineEdit::editingFinished, box, [box] {
        if (box->text().isEmpty())
            box->setText(QStringLiteral("0"));
    });
    return box;
}

} // namespace

ScoutScreen::ScoutScreen(game::Context context, QWidget *parent)
    : Page("Secretario", tr("SECRETARIO TÉCNICO"), tr("SECRETARIO TÉCNICO"), {Back::Side::Left}, parent),
      m_context(context)
{
    setFrame(28, 16, 10);
    using Column = PlayerGrid::Column;
    m_players = new PlayerGrid("DGJugadores", {Column::Nombre, Column::Apellidos, Column::Edad, Column::Posicion,
                                               Column::Media, Column::Dorsal, Column::Nacionalidad});
    connect(m_players, &PlayerGrid::playerPicked, this, &ScoutScreen::playerPicked);
    // Before a search the secretary lists everybody, by first name.
    m_players->setPlayers(game::Market(m_context).everybody());

    auto *hint = theme::label("hint", tr("Pulsa sobre un jugador para hacer una oferta por él."));
    auto *right = new QVBoxLayout;
    right->addWidget(m_players, 1);
    right->addWidget(hint);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addWidget(buildCriteria(), 0);
    body->addLayout(right, 1);
    addLayout(body, 1);
}

QWidget *ScoutScreen::buildCriteria()
{
    auto *box = new QGroupBox(tr("CRITERIOS DE BÚSQUEDA "));
    box->setFixedWidth(340);

    m_nombre = nameBox("txtNombre");
    m_apellidos = nameBox("txtApellidos");
    m_media = numberBox("txtMedia");
    m_edad = numberBox("txtEdad");

    m_posicion = theme::list("List1", "search");
    m_posicion->addItem(kAnyPosition);
    for (const char16_t *position : game::kPositions)
        m_posicion->addItem(QString::fromUtf16(position));
    m_posicion->setCurrentRow(0);

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(10);
    form->addWidget(theme::fieldCaption(tr("Nombre:")), 0, 0, Qt::AlignRight);
    form->addWidget(m_nombre, 0, 1);
    form->addWidget(theme::fieldCaption(tr("Apellidos:")), 1, 0, Qt::AlignRight);
    form->addWidget(m_apellidos, 1, 1);
    form->addWidget(theme::fieldCaption(tr("Calidad:")), 2, 0, Qt::AlignRight);
    form->addWidget(m_media, 2, 1, Qt::AlignLeft);
    form->addWidget(theme::fieldCaption(tr("Edad:")), 3, 0, Qt::AlignRight);
    form->addWidget(m_edad, 3, 1, Qt::AlignLeft);
    form->addWidget(theme::fieldCaption(tr("Posición:")), 4, 0, Qt::AlignRight | Qt::AlignTop);
    form->addWidget(m_posicion, 4, 1);
    form->setRowStretch(4, 1);

    auto *find = new QPushButton(tr("BUSCAR"));
    find->setObjectName(QStringLiteral("cmdBuscar"));
    connect(find, &QPushButton::clicked, this, &ScoutScreen::search);

    auto *rules = theme::label("hint", tr("El nombre y los apellidos buscan por su comienzo. Una calidad o una edad "
                                          "mandan sobre la posición, y la calidad sobre la edad, salvo que se den "
                                          "nombre, apellidos, calidad y edad: entonces cuentan los cinco."));
    rules->setWordWrap(true);

    auto *layout = new QVBoxLayout(box);
    layout->setSpacing(10);
    layout->addLayout(form, 1);
    layout->addWidget(rules);
    layout->addWidget(find);
    return box;
}

void ScoutScreen::search()
{
    const QListWidgetItem *position = m_posicion->currentItem();
    m_players->setPlayers(game::Market(m_context).search(
        {m_nombre->text(), m_apellidos->text(), position ? position->text() : kAnyPosition, m_media->text(),
         m_edad->text()}));
}

} // namespace ui
