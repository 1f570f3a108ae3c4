#include "contractscreen.h"

#include "common/theme.h"
#include "money.h"
#include "moneybox.h"
#include "offerscreen.h"
#include "transfers/contracts.h"
#include "transfers/market.h"
#include "transfers/offers.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

ContractScreen::ContractScreen(game::Context context, QWidget *parent)
    : Page("Renovar", tr("Situación en el Club"), tr("SITUACIÓN EN EL CLUB"),
           {Back::Side::Left, "cmdCancelar", tr("CANCELAR")}, parent),
      m_context(context)
{
    m_card = new PlayerCard;
    m_listing = theme::label("caption");
    m_listing->setObjectName(QStringLiteral("lbltr"));
    m_listing->setMinimumHeight(24);
    // The contract he has now, to weigh the new one against: the boxes start from it and may
    // have been changed since.
    m_card->addSection(tr("CONTRATO ACTUAL"));
    m_wageNow = m_card->addFact("lblFichaActual", tr("FICHA:"));
    m_clauseNow = m_card->addFact("lblClausulaActual", tr("CLÁUSULA:"));
    m_yearsNow = m_card->addFact("lblAñosActual", tr("AÑOS:"));

    auto *player = new QGroupBox(tr("JUGADOR"));
    auto *playerLayout = new QVBoxLayout(player);
    playerLayout->setContentsMargins(20, 20, 20, 16);
    playerLayout->setSpacing(18);
    playerLayout->addWidget(m_card);
    playerLayout->addStretch();
    playerLayout->addWidget(m_listing);

    m_stepper = new Stepper(this);
    auto *terms = new TermsBox(tr("NUEVO CONTRATO"), m_stepper);
    m_clausula = terms->clausula();
    m_ficha = terms->ficha();
    m_years = terms->years();
    auto *rules = theme::label("hint", tr("Los años se suman a los que le quedan, hasta %1 en total. El jugador pide "
                                          "al menos %2 € más de ficha y no acepta una cláusula de más de vez y media "
                                          "la actual.")
                                           .arg(game::Contracts::kMostYears)
                                           .arg(game::Contracts::kWageRise));
    rules->setWordWrap(true);
    terms->addNote(rules);

    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(player, 1);
    body->addWidget(terms, 1);

    m_dismiss = new QPushButton(tr("DESPEDIR"));
    m_dismiss->setObjectName(QStringLiteral("cmdDespedir"));
    m_dismiss->setToolTip(tr("Lo deja libre; el club le paga la ficha de cada año de contrato que le queda"));
    connect(m_dismiss, &QPushButton::clicked, this, &ContractScreen::dismiss);
    m_list = new QPushButton(tr("TRASPASAR"));
    m_list->setObjectName(QStringLiteral("cmdTransferir"));
    m_list->setToolTip(tr("Lo pone a la venta, o lo retira si ya lo está"));
    connect(m_list, &QPushButton::clicked, this, &ContractScreen::toggleListing);
    m_renew = new QPushButton(tr("RENOVAR"));
    m_renew->setObjectName(QStringLiteral("cmdfichar"));
    connect(m_renew, &QPushButton::clicked, this, &ContractScreen::renew);
    // Each act needs a player shown.
    for (QPushButton *act : {m_renew, m_dismiss, m_list})
        act->setEnabled(false);
    foot()->addWidget(m_dismiss);
    foot()->addWidget(m_list);
    foot()->addSpacing(16);
    foot()->addWidget(m_renew);
    addLayout(body, 1);
}

void ContractScreen::showPlayer(int player)
{
    m_player = player;
    const std::optional<game::Market::Card> card = game::Market(m_context).card(player);
    for (QPushButton *act : {m_renew, m_dismiss, m_list})
        act->setEnabled(card.has_value());
    if (!card)
        return;
    m_card->setCard(*card);
    m_wageNow->setText(game::euros(card->ficha));
    m_clauseNow->setText(game::euros(card->clausula));
    m_yearsNow->setText(QString::number(card->years));
    // The new contract starts from the present one, for five more years.
    m_clausula->setText(QString::number(card->clausula) + QStringLiteral("€"));
    m_ficha->setText(QString::number(card->ficha) + QStringLiteral("€"));
    m_years->setYears(5);
    showListing(card->listed);
}

void ContractScreen::step()
{
    m_stepper->step();
}

void ContractScreen::renew()
{
    // The boxes are read as an offer's are; a sum too large for the game is refused with its
    // message and the screen stays to correct it. Otherwise the player answers at once, and
    // the screen has done its work whatever he said.
    const std::optional<game::Offers::Terms> terms = game::Offers::termsFrom(
        QString(), m_clausula->text(), m_ficha->text(), m_years->text(), m_context.dialogs);
    if (!terms)
        return;
    const bool renewed = game::Contracts(m_context).renew(m_player, {terms->clausula, terms->ficha, terms->years});
    emit renewalDone(renewed);
}

void ContractScreen::dismiss()
{
    if (game::Contracts(m_context).dismiss(m_player) == game::Contracts::Dismissal::Dismissed)
        emit dismissed();
}

void ContractScreen::toggleListing()
{
    showListing(game::Contracts(m_context).toggleListing(m_player));
}

void ContractScreen::showListing(bool listed)
{
    m_listing->setText(listed ? tr("JUGADOR EN CONDICIÓN DE TRANSFERIBLE") : QString());
}

} // namespace ui
