#include "offerscreen.h"

#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "moneybox.h"
#include "transfers/offers.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

PlayerCard::PlayerCard(QWidget *parent) : QWidget(parent)
{
    m_name = plainLabel();
    m_name->setObjectName(QStringLiteral("lblNombre"));
    m_name->setWordWrap(true);

    auto *facts = m_grid = new QGridLayout;
    facts->setHorizontalSpacing(16);
    facts->setVerticalSpacing(12);
    const QString captions[] = {tr("EDAD:"), tr("NACIONALIDAD:"), tr("POSICIÓN:"), tr("LESIONADO:"), tr("MEDIA:")};
    for (int row = 0; row < int(m_facts.size()); ++row) {
        m_facts[std::size_t(row)] = indexed::label("lblEdad", row);
        m_facts[std::size_t(row)]->setProperty("role", QStringLiteral("value"));
        facts->addWidget(theme::fieldCaption(captions[row]), row, 0, Qt::AlignRight);
        facts->addWidget(m_facts[std::size_t(row)], row, 1);
    }
    m_team = plainLabel();
    m_team->setObjectName(QStringLiteral("lblEquipo"));
    m_team->setProperty("role", QStringLiteral("value"));
    const int teamRow = int(m_facts.size());
    facts->addWidget(theme::fieldCaption(tr("EQUIPO:")), teamRow, 0, Qt::AlignRight);
    facts->addWidget(m_team, teamRow, 1);
    facts->setColumnStretch(1, 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(18);
    layout->addWidget(m_name);
    layout->addLayout(facts);
}

void PlayerCard::addSection(const QString &caption)
{
    QLabel *heading = theme::label("caption", caption);
    heading->setIndent(0);
    m_grid->addWidget(heading, m_grid->rowCount(), 0, 1, 2);
}

QLabel *PlayerCard::addFact(const char *name, const QString &caption)
{
    QLabel *value = plainLabel();
    value->setObjectName(QString::fromUtf8(name));
    value->setProperty("role", QStringLiteral("value"));
    const int row = m_grid->rowCount();
    m_grid->addWidget(theme::fieldCaption(caption), row, 0, Qt::AlignRight);
    m_grid->addWidget(value, row, 1);
    return value;
}

void PlayerCard::setCard(const game::Market::Card &card)
{
    m_name->setText(card.nombre + QLatin1Char(' ') + card.apellidos);
    m_facts[0]->setText(QString::number(card.edad));
    m_facts[1]->setText(card.nacionalidad);
    m_facts[2]->setText(card.posicion);
    m_facts[3]->setText(card.lesion);
    m_facts[4]->setText(QString::number(card.media));
    m_team->setText(card.equipo);
}

OfferScreen::OfferScreen(game::Context context, QWidget *parent)
    : Page("Fichar_Jugadores", tr("Fichar Jugador"), tr("FICHAR JUGADOR"),
           {Back::Side::Left, "cmdCancelar", tr("CANCELAR")}, parent),
      m_context(context)
{
    m_card = new PlayerCard;
    auto *player = new QGroupBox(tr("JUGADOR"));
    auto *playerLayout = new QVBoxLayout(player);
    playerLayout->setContentsMargins(20, 20, 20, 16);
    playerLayout->addWidget(m_card);
    playerLayout->addStretch();

    m_stepper = new Stepper(this);
    m_oferta = new MoneyBox("txtOferta");
    // The sum for the club comes first; the rest are the player's own terms.
    auto *terms = new TermsBox(tr("LA OFERTA"), m_stepper,
                               m_stepper->field(tr("OFERTA AL EQUIPO"), m_oferta, "subeoferta", "bajaoferta"));
    m_clausula = terms->clausula();
    m_ficha = terms->ficha();
    m_years = terms->years();

    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(player, 1);
    body->addWidget(terms, 1);

    m_notes = plainLabel();
    m_notes->setObjectName(QStringLiteral("lblNotas"));
    m_notes->setWordWrap(true);
    m_notes->setMinimumHeight(44);

    auto *hint = theme::label("hint", tr("La respuesta llegará dentro de %1 semanas.").arg(game::Offers::kWeeksToAnswer));
    m_make = new QPushButton(tr("HACER OFERTA"));
    m_make->setObjectName(QStringLiteral("cmdfichar"));
    connect(m_make, &QPushButton::clicked, this, &OfferScreen::makeOffer);
    // There is an offer to make once a player is shown.
    m_make->setEnabled(false);
    foot()->addWidget(hint);
    foot()->addSpacing(16);
    foot()->addWidget(m_make);
    addLayout(body, 1);
    addWidget(m_notes);
}

void OfferScreen::showPlayer(int player, Mode mode)
{
    m_player = player;
    const std::optional<game::Market::Card> card = game::Market(m_context).card(player);
    m_make->setEnabled(card.has_value());
    if (!card)
        return;
    m_card->setCard(*card);
    if (mode == Mode::Listed) {
        // A listed player starts from what he and his club ask: his wage, and his clause for
        // both the club and himself. These starting texts carry no blank before the sign; the
        // boxes take their usual form once stepped or left.
        const QString clausula = QString::number(card->clausula);
        const QString ficha = QString::number(card->ficha);
        m_notes->setText(tr("El Jugador desea Cobrar como Mínimo %1€. El Club, por lo contrario quiere recibir "
                            "como mínimo %2€.")
                             .arg(ficha, clausula));
        m_oferta->setText(clausula + QStringLiteral("€"));
        m_clausula->setText(clausula + QStringLiteral("€"));
        m_ficha->setText(ficha + QStringLiteral("€"));
        m_years->setYears(5);
    } else {
        m_notes->clear();
        for (MoneyBox *box : {m_oferta, m_clausula, m_ficha})
            box->setText(QStringLiteral("1 €"));
        m_years->setYears(1);
    }
}

void OfferScreen::step()
{
    m_stepper->step();
}

void OfferScreen::makeOffer()
{
    // A sum too large for the game is refused with its message, and the screen stays for the
    // player to correct it.
    const std::optional<game::Offers::Terms> terms = game::Offers::termsFrom(
        m_oferta->text(), m_clausula->text(), m_ficha->text(), m_years->text(), m_context.dialogs);
    if (!terms)
        return;
    if (game::Offers(m_context).make(m_player, *terms))
        emit closeRequested();
}

} // namespace ui
