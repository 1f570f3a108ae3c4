#include "clubsscreen.h"

#include "career/preseason.h"
#include "common/artwork.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "playergrid.h"
#include "transfers/market.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int kFlagsPerRow = 5;

QToolButton *countryButton(const QString &name, const QString &caption)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setText(caption);
    button->setToolTip(caption);
    button->setProperty("caption", caption);
    button->setFixedSize(66, 46);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(QStringLiteral("QToolButton { background: #1b2f57; color: #f1f3f8; font-size: 10px;"
                                         " font-weight: bold; border: 1px solid #3a5486; border-radius: 4px; }"
                                         "QToolButton:hover { border-color: #e8a33d; }"));
    return button;
}

} // namespace

ClubsScreen::ClubsScreen(game::Context context, QWidget *parent) : QWidget(parent), m_context(context)
{
    setObjectName(QStringLiteral("Fichar"));
    setWindowTitle(tr("Fichajes"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Fichar { background-color: #0f1e3c; }"));

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addWidget(buildCountries(), 0);
    body->addWidget(buildSquad(), 1);

    auto *back = theme::backButton();
    connect(back, &QPushButton::clicked, this, &ClubsScreen::closeRequested);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(10);
    layout->addWidget(theme::heading(tr("OFERTAS")));
    layout->addLayout(body, 1);
    layout->addLayout(buttons);
}

QWidget *ClubsScreen::buildCountries()
{
    auto *box = new QGroupBox(tr("PAÍSES"));
    m_countryChosen = plainLabel();
    m_countryChosen->setObjectName(QStringLiteral("lblPaisSel"));
    m_countryChosen->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 16px; font-weight: bold;"));
    m_countryChosen->setMinimumHeight(24);
    m_countryHovered = plainLabel();
    m_countryHovered->setObjectName(QStringLiteral("lblPaises"));
    m_countryHovered->setProperty("role", QStringLiteral("hint"));
    m_countryHovered->setMinimumHeight(22);

    auto *flags = new QGridLayout;
    flags->setSpacing(6);
    int place = 0;
    for (const game::Preseason::Country &country : game::Preseason::countries()) {
        const QString caption = QString::fromUtf16(country.caption);
        QToolButton *button = countryButton(QString::fromUtf8(country.button), caption);
        button->setIcon(QIcon(artwork::flag(country.code, QSize(96, 64))));
        button->setIconSize(QSize(54, 36));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, code = country.code, caption] { chooseCountry(code, caption); });
        flags->addWidget(button, place / kFlagsPerRow, place % kFlagsPerRow);
        ++place;
    }
    // Norway stands among the flags but has no clubs in the game: its button names the
    // country under the pointer and does nothing when pressed.
    QToolButton *norway = countryButton(QStringLiteral("cmdNoruega"), tr("NORUEGA"));
    norway->setIcon(QIcon(artwork::flag(artwork::kNorway, QSize(96, 64))));
    norway->setIconSize(QSize(54, 36));
    norway->setToolButtonStyle(Qt::ToolButtonIconOnly);
    norway->installEventFilter(this);
    flags->addWidget(norway, place / kFlagsPerRow, place % kFlagsPerRow);

    m_clubs = new QListWidget;
    m_clubs->setObjectName(QStringLiteral("DataList1"));
    m_clubs->setStyleSheet(QStringLiteral("QListWidget { background: #1b2f57; color: #ffffff; border: 1px solid #3a5486; }"
                                          "QListWidget::item { padding: 3px; }"
                                          "QListWidget::item:selected { background: #e8a33d; color: #10203f; }"));
    // Before a country is chosen the list holds every club of the game.
    m_clubs->addItems(game::Market(m_context).clubsOf(0));
    connect(m_clubs, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) { chooseClub(item->text()); });

    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_countryChosen);
    layout->addLayout(flags);
    layout->addWidget(m_countryHovered);
    layout->addWidget(m_clubs, 1);
    return box;
}

QWidget *ClubsScreen::buildSquad()
{
    auto *box = new QGroupBox(tr("PLANTILLA"));
    m_clubChosen = plainLabel();
    m_clubChosen->setObjectName(QStringLiteral("lblNombreEquipo"));
    m_clubChosen->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 16px; font-weight: bold;"));
    m_clubChosen->setMinimumHeight(24);

    using Column = PlayerGrid::Column;
    m_squad = new PlayerGrid("DataGrid1", {Column::Nombre, Column::Apellidos, Column::Posicion, Column::Media,
                                           Column::Nacionalidad});
    m_squad->hide();
    connect(m_squad, &PlayerGrid::playerPicked, this, &ClubsScreen::playerPicked);

    m_squadHint = plainLabel(tr("Elige un país y uno de sus clubes para ver su plantilla. "
                                "Pulsa sobre un jugador para hacer una oferta por él, esté a la venta o no."));
    m_squadHint->setProperty("role", QStringLiteral("hint"));
    m_squadHint->setWordWrap(true);

    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_clubChosen);
    layout->addWidget(m_squad, 1);
    layout->addWidget(m_squadHint);
    layout->addStretch();
    return box;
}

bool ClubsScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        m_countryHovered->setText(watched->property("caption").toString());
    else if (event->type() == QEvent::Leave)
        m_countryHovered->clear();
    return QWidget::eventFilter(watched, event);
}

void ClubsScreen::chooseCountry(int code, const QString &caption)
{
    m_countryChosen->setText(caption);
    m_clubs->clear();
    m_clubs->addItems(game::Market(m_context).clubsOf(code));
}

void ClubsScreen::chooseClub(const QString &name)
{
    m_clubChosen->setText(name);
    m_squad->setPlayers(game::Market(m_context).playersOf(name));
    m_squad->show();
    m_squadHint->setText(tr("Pulsa sobre un jugador para hacer una oferta por él, esté a la venta o no."));
}

} // namespace ui
