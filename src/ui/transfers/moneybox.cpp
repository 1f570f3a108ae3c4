#include "moneybox.h"

#include "common/theme.h"
#include "transfers/terms.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace ui {

namespace {

// A key that writes something other than a digit is dropped; control keys (backspace, the
// arrows, copying and pasting) pass.
bool writesNonDigit(const QKeyEvent *event)
{
    const QString text = event->text();
    return !text.isEmpty() && text.front() >= QLatin1Char(' ') && !text.front().isDigit();
}

bool onlyDigitsAndSign(const QString &text)
{
    for (const QChar c : text) {
        if (!(c >= QLatin1Char('0') && c <= QLatin1Char('9')) && c != QLatin1Char(' ') && c != QChar(0x20AC))
            return false;
    }
    return true;
}

QPushButton *stepButton(const char *name, const QString &text, const QString &hint)
{
    auto *button = new QPushButton(text);
    button->setObjectName(QString::fromUtf8(name));
    button->setToolTip(hint);
    button->setProperty("role", QStringLiteral("step"));
    return button;
}

QWidget *captioned(const QString &caption, QLayout *row)
{
    auto *field = new QWidget;
    auto *layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(theme::fieldCaption(caption));
    layout->addLayout(row);
    return field;
}

} // namespace

QString moneyText(const QString &text)
{
    return text.isEmpty() ? QString() : game::digitsOf(text) + QStringLiteral(" €");
}

MoneyBox::MoneyBox(const char *name, QWidget *parent) : QLineEdit(parent)
{
    setObjectName(QString::fromUtf8(name));
    setText(QStringLiteral("1 €"));
    setAlignment(Qt::AlignRight);
    setMinimumWidth(150);
    connect(this, &QLineEdit::textEdited, this, [this](const QString &text) {
        // A sum is never missing: a box left without a digit, emptied or pasted over with
        // letters alone, asks for one euro. Pasted text keeps only its digits, as typing would
        // have.
        if (game::digitsOf(text).isEmpty())
            setText(QStringLiteral("1 €"));
        else if (!onlyDigitsAndSign(text))
            setText(game::digitsOf(text));
    });
}

void MoneyBox::stepUp()
{
    step(kStep);
}

void MoneyBox::stepDown()
{
    const QString digits = game::digitsOf(text());
    if (digits.size() <= 18 && digits.toLongLong() > 1)
        step(-kStep);
}

void MoneyBox::step(qint64 change)
{
    const QString digits = game::digitsOf(text());
    // A sum of more digits than any number holds is left as typed; the offer refuses it.
    if (digits.size() > 18)
        return;
    setText(moneyText(QString::number(digits.toLongLong() + change)));
}

void MoneyBox::keyPressEvent(QKeyEvent *event)
{
    if (writesNonDigit(event)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void MoneyBox::focusOutEvent(QFocusEvent *event)
{
    setText(moneyText(text()));
    QLineEdit::focusOutEvent(event);
}

Stepper::Stepper(QWidget *screen) : QObject(screen), m_timer(new QTimer(this))
{
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setInterval(kInterval);
    connect(m_timer, &QTimer::timeout, this, &Stepper::step);
}

QWidget *Stepper::field(const QString &caption, MoneyBox *box, const char *up, const char *down)
{
    QPushButton *raise = stepButton(up, QStringLiteral("+"), tr("Mantén pulsado para subir la cantidad"));
    QPushButton *lower = stepButton(down, QStringLiteral("−"), tr("Mantén pulsado para bajar la cantidad"));
    connect(raise, &QPushButton::pressed, this, [this, box] { hold(box, true); });
    connect(lower, &QPushButton::pressed, this, [this, box] { hold(box, false); });
    connect(raise, &QPushButton::released, m_timer, &QTimer::stop);
    connect(lower, &QPushButton::released, m_timer, &QTimer::stop);

    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(box, 1);
    row->addWidget(lower);
    row->addWidget(raise);
    return captioned(caption, row);
}

void Stepper::hold(MoneyBox *box, bool up)
{
    m_box = box;
    m_up = up;
    m_timer->start();
}

void Stepper::step()
{
    if (!m_box)
        return;
    if (m_up)
        m_box->stepUp();
    else
        m_box->stepDown();
}

YearsBox::YearsBox(QWidget *parent) : QLineEdit(parent), m_bar(new QScrollBar(Qt::Horizontal))
{
    setObjectName(QStringLiteral("txtaños"));
    setAlignment(Qt::AlignCenter);
    setFixedWidth(60);
    m_bar->setObjectName(QStringLiteral("HScroll4"));
    m_bar->setRange(kFewest, kMostOnTheBar);
    m_bar->setPageStep(1);
    m_bar->setMinimumWidth(160);
    connect(m_bar, &QScrollBar::valueChanged, this, [this](int years) { setText(QString::number(years)); });
    connect(this, &QLineEdit::textChanged, this, &YearsBox::check);
    setYears(kFewest);
}

void YearsBox::setYears(int years)
{
    m_bar->setValue(years);
    setText(QString::number(years));
}

QWidget *YearsBox::field(const QString &caption)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(this);
    row->addWidget(m_bar, 1);
    return captioned(caption, row);
}

void YearsBox::keyPressEvent(QKeyEvent *event)
{
    if (writesNonDigit(event)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void YearsBox::check(const QString &text)
{
    // A contract runs 1 to 6 years; anything else in the box reads as one year. A number the
    // bar can show moves the bar with it.
    const std::optional<int> years = game::typedYears(text);
    if (!years) {
        setText(QString::number(kFewest));
        return;
    }
    if (*years <= kMostOnTheBar && m_bar->value() != *years) {
        const QSignalBlocker quiet(m_bar);
        m_bar->setValue(*years);
    }
}

TermsBox::TermsBox(const QString &title, Stepper *stepper, QWidget *lead, QWidget *parent)
    : QGroupBox(title, parent), m_layout(new QVBoxLayout(this)), m_clausula(new MoneyBox("txtclausula")),
      m_ficha(new MoneyBox("txtficha")), m_years(new YearsBox)
{
    auto *freedom = new QCheckBox(tr("Libertad por Descenso"));
    freedom->setObjectName(QStringLiteral("Check1"));
    auto *house = new QCheckBox(tr("Casa y Coche"));
    house->setObjectName(QStringLiteral("Check2"));

    m_layout->setContentsMargins(20, 20, 20, 16);
    m_layout->setSpacing(12);
    if (lead)
        m_layout->addWidget(lead);
    m_layout->addWidget(stepper->field(tr("CLAUSULA DE RESCISIÓN"), m_clausula, "subleclausula", "bajaclausula"));
    m_layout->addWidget(stepper->field(tr("FICHA ANUAL"), m_ficha, "subeficha", "bajaficha"));
    m_layout->addWidget(m_years->field(tr("AÑOS")));
    auto *checks = new QHBoxLayout;
    checks->addWidget(freedom);
    checks->addSpacing(20);
    checks->addWidget(house);
    checks->addStretch();
    m_layout->addLayout(checks);
    m_layout->addStretch();
}

void TermsBox::addNote(QWidget *note)
{
    // Notes go above the closing stretch, so the terms stay together at the top of the box.
    m_layout->insertWidget(m_layout->count() - 1, note);
}

} // namespace ui
