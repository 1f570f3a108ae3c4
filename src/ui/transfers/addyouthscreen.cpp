#include "addyouthscreen.h"

#include "league/leagueclubs.h"
#include "league/nationalities.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "transfers/youthacademy.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace ui {

namespace {


// A list that shows a prompt until something is chosen; currentText() is then empty.
QComboBox *promptedList(const char *name, const QString &prompt, const QStringList &items)
{
    auto *list = new QComboBox;
    list->setObjectName(QString::fromLatin1(name));
    list->addItems(items);
    list->setPlaceholderText(prompt);
    list->setCurrentIndex(-1);
    list->setMaxVisibleItems(15);
    return list;
}

// A box of digits driven by a bar; what is typed moves the bar, and a number outside the
// bar's range goes back to the bar's value when the box is left.
QLineEdit *barBox(const char *name, QScrollBar *bar)
{
    auto *box = new QLineEdit;
    box->setObjectName(QString::fromLatin1(name));
    box->setValidator(new QIntValidator(0, 99, box));
    box->setMaxLength(2);
    box->setFixedWidth(60);
    box->setAlignment(Qt::AlignCenter);
    QObject::connect(bar, &QScrollBar::valueChanged, box,
                     [box](int value) { box->setText(QString::number(value)); });
    QObject::connect(box, &QLineEdit::textEdited, bar, [bar](const QString &text) {
        bool isNumber = false;
        const int value = text.toInt(&isNumber);
        if (isNumber && value >= bar->minimum() && value <= bar->maximum())
            bar->setValue(value);
    });
    QObject::connect(box, &QLineEdit::editingFinished, bar,
                     [box, bar] { box->setText(QString::number(bar->value())); });
    box->setText(QString::number(bar->value()));
    return box;
}

QScrollBar *bar(const char *name, int low, int high)
{
    auto *scroll = new QScrollBar(Qt::Horizontal);
    scroll->setObjectName(QString::fromLatin1(name));
    scroll->setRange(low, high);
    scroll->setPageStep(1);
    scroll->setMinimumWidth(220);
    return scroll;
}

} // namespace

const QStringList &AddYouthScreen::countries()
{
    static const QStringList names = game::nationalities(game::SerbiaSpelling::Blank);
    return names;
}

AddYouthScreen::AddYouthScreen(game::Context context, QWidget *parent) : QDialog(parent), m_context(context)
{
    setObjectName(QStringLiteral("Agregar_Juveniles"));
    setWindowTitle(tr("Añadir Jugadores Juveniles"));
    setModal(true);

    m_nombre = new QLineEdit;
    m_nombre->setObjectName(QStringLiteral("txtNombre"));
    m_nombre->setMaxLength(50);
    m_apellidos = new QLineEdit;
    m_apellidos->setObjectName(QStringLiteral("txtApellidos"));
    m_apellidos->setMaxLength(50);

    QStringList positions;
    for (const char16_t *position : game::kPositions)
        positions << QString::fromUtf16(position);
    m_position = promptedList("List1", tr("Eliga Posición"), positions);
    m_country = promptedList("List2", tr("Pais de Nacionalidad"), countries());

    m_edadBar = bar("HScroll1", game::YouthAcademy::kMinAge, game::YouthAcademy::kMaxAge);
    m_dorsalBar = bar("HScroll2", game::YouthAcademy::kMinShirt, game::YouthAcademy::kMaxShirt);
    m_edad = barBox("txtEdad", m_edadBar);
    m_dorsal = barBox("txtDorsal", m_dorsalBar);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(12);
    grid->addWidget(theme::fieldCaption(tr("Nombre:")), 0, 0, Qt::AlignRight);
    grid->addWidget(m_nombre, 0, 1, 1, 2);
    grid->addWidget(theme::fieldCaption(tr("Apellidos:")), 1, 0, Qt::AlignRight);
    grid->addWidget(m_apellidos, 1, 1, 1, 2);
    grid->addWidget(theme::fieldCaption(tr("Posición:")), 2, 0, Qt::AlignRight);
    grid->addWidget(m_position, 2, 1, 1, 2);
    grid->addWidget(theme::fieldCaption(tr("Nacionalidad:")), 3, 0, Qt::AlignRight);
    grid->addWidget(m_country, 3, 1, 1, 2);
    grid->addWidget(theme::fieldCaption(tr("Edad:")), 4, 0, Qt::AlignRight);
    grid->addWidget(m_edad, 4, 1);
    grid->addWidget(m_edadBar, 4, 2);
    grid->addWidget(theme::fieldCaption(tr("Dorsal:")), 5, 0, Qt::AlignRight);
    grid->addWidget(m_dorsal, 5, 1);
    grid->addWidget(m_dorsalBar, 5, 2);
    grid->setColumnStretch(2, 1);

    auto *agregar = new QPushButton(tr("Agregar"));
    agregar->setObjectName(QStringLiteral("cmdAgregar"));
    agregar->setDefault(true);
    connect(agregar, &QPushButton::clicked, this, &AddYouthScreen::add);
    auto *close = theme::backButton();
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(close);
    buttons->addStretch();
    buttons->addWidget(agregar);

    auto *note = plainLabel(tr("Los juveniles entran en la cantera con una media de 95, una ficha de 1000 € "
                               "y cinco años de contrato. En tu carrera podrás ficharlos desde la plantilla, "
                               "en «JUVENILES»."));
    note->setProperty("role", QStringLiteral("hint"));
    note->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->setSpacing(16);
    layout->addWidget(theme::heading(tr("AÑADIR JUGADORES JUVENILES")));
    layout->addLayout(grid);
    layout->addWidget(note);
    layout->addStretch();
    layout->addLayout(buttons);
    resize(640, 460);
}

void AddYouthScreen::add()
{
    game::YouthAcademy academy(m_context);
    const int id = academy.add({m_nombre->text(), m_apellidos->text(), m_edad->text(), m_dorsal->text(),
                                m_position->currentText(), m_country->currentText()});
    if (id > 0)
        reset();
}

void AddYouthScreen::reset()
{
    m_nombre->clear();
    m_apellidos->clear();
    m_edadBar->setValue(game::YouthAcademy::kMinAge);
    m_dorsalBar->setValue(game::YouthAcademy::kMinShirt);
    m_edad->setText(QString::number(game::YouthAcademy::kMinAge));
    m_dorsal->setText(QString::number(game::YouthAcademy::kMinShirt));
    m_position->setCurrentIndex(-1);
    m_country->setCurrentIndex(-1);
}

} // namespace ui
