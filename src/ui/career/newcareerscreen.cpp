#include "newcareerscreen.h"

#include "league/leagueclubs.h"
#include "league/nationalities.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "crestbutton.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int kCrestSide = 112;


} // namespace

const QStringList &NewCareerScreen::nationalities()
{
    static const QStringList names = game::nationalities(game::SerbiaSpelling::Hyphen);
    return names;
}

NewCareerScreen::NewCareerScreen(game::Career &career, QWidget *parent)
    : QDialog(parent), m_career(career)
{
    setObjectName(QStringLiteral("Liga_Manager"));
    setWindowTitle(tr("Comenzar Liga Manager"));
    setModal(true);

    m_nombre = new QLineEdit;
    m_nombre->setObjectName(QStringLiteral("txtNombre"));
    m_nombre->setMaxLength(50);
    m_apellidos = new QLineEdit;
    m_apellidos->setObjectName(QStringLiteral("txtApellidos"));
    m_apellidos->setMaxLength(50);
    m_nationality = new QComboBox;
    m_nationality->setObjectName(QStringLiteral("list1"));
    m_nationality->addItems(nationalities());
    m_nationality->setCurrentIndex(10);
    m_nationality->setMaxVisibleItems(15);

    m_chosen = theme::label("value");
    m_chosen->setObjectName(QStringLiteral("lblEquiposel"));
    m_chosen->setMinimumWidth(260);

    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight);
    form->setHorizontalSpacing(14);
    form->setVerticalSpacing(12);
    form->addRow(theme::fieldCaption(tr("Nombre:")), m_nombre);
    form->addRow(theme::fieldCaption(tr("Apellidos:")), m_apellidos);
    form->addRow(theme::fieldCaption(tr("Tu Nacionalidad:")), m_nationality);
    form->addRow(theme::fieldCaption(tr("Equipo:")), m_chosen);

    auto *frame = new QGroupBox(tr("Equipos ASOBAL"));
    frame->setObjectName(QStringLiteral("Frame"));
    auto *grid = new QGridLayout(frame);
    grid->setSpacing(6);
    static const char *const widgetNames[16] = {
        "IBarcelona", "ICReal",      "IAdemar", "IPortland", "IValladolid", "IAletea",
        "ICantabria", "IValencia",   "IGranollers", "ITeucro", "ICangas",   "IBidasoa",
        "IBaracaldo", "IOctavio",    "IArrate", "IAlmeria",
    };
    for (std::size_t i = 0; i < game::kLeagueClubs.size(); ++i) {
        const game::LeagueClub &club = game::kLeagueClubs[i];
        auto *crest = new CrestButton(club.id, QString::fromUtf16(club.caption), kCrestSide);
        crest->setObjectName(QString::fromLatin1(widgetNames[i]));
        grid->addWidget(crest, int(i) / 8, int(i) % 8);
        connect(crest, &CrestButton::hovered, this, [this](const QString &name) { m_hovered->setText(name); });
        connect(crest, &CrestButton::left, this, [this] { m_hovered->clear(); });
        connect(crest, &CrestButton::clicked, this, &NewCareerScreen::chooseClub);
        m_crests.append(crest);
    }
    m_hovered = plainLabel();
    m_hovered->setObjectName(QStringLiteral("lblEquipo"));
    m_hovered->setAlignment(Qt::AlignCenter);
    m_hovered->setMinimumHeight(30);
    grid->addWidget(m_hovered, 2, 0, 1, 8);

    auto *seguir = new QPushButton(tr("SEGUIR"));
    seguir->setObjectName(QStringLiteral("cmdSeguir"));
    seguir->setDefault(true);
    auto *cancelar = new QPushButton(tr("CANCELAR"));
    cancelar->setObjectName(QStringLiteral("Command2"));
    cancelar->setProperty("role", QStringLiteral("secondary"));
    connect(seguir, &QPushButton::clicked, this, &NewCareerScreen::proceed);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancelar);
    buttons->addWidget(seguir);

    auto *top = new QHBoxLayout;
    top->addLayout(form, 1);
    top->addSpacing(40);
    auto *hint = theme::label("hint", tr("Pasa el ratón por los escudos para ver cada equipo y pulsa sobre el tuyo."));
    hint->setWordWrap(true);
    top->addWidget(hint, 1, Qt::AlignBottom);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->setSpacing(16);
    layout->addWidget(theme::heading(tr("INTRODUCE NOMBRE Y EQUIPO")));
    layout->addLayout(top);
    layout->addWidget(frame);
    layout->addLayout(buttons);
}

void NewCareerScreen::chooseClub(int clubId, const QString &caption)
{
    m_clubId = clubId;
    m_chosen->setText(caption);
    for (CrestButton *crest : std::as_const(m_crests))
        crest->setChosen(crest->clubId() == clubId);
}

void NewCareerScreen::proceed()
{
    if (m_career.start({m_nombre->text(), m_apellidos->text(), m_clubId, m_chosen->text()}))
        emit careerStarted();
}

} // namespace ui
