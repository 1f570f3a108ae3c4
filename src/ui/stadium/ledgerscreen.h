#pragma once

#include "common/page.h"
#include "context.h"
#include "stadium/ledger.h"

class QGroupBox;
class QLineEdit;

namespace ui {

// "LA CAJA": the money of one week, or the sums of the season, with the week before, and a
// chart of the season so far week by week.
class LedgerScreen : public Page
{
    Q_OBJECT

public:
    LedgerScreen(game::Context context, int currentWeek, QWidget *parent = nullptr);

private:
    QGroupBox *buildFrame(const char *name, const QString &caption, int index);
    QWidget *seasonChart();
    void fill();
    void setAmount(const char *label, int index, qint64 amount);

    game::Context m_context;
    game::LedgerBrowser m_browser;
    QGroupBox *m_week;
    QGroupBox *m_season;
    QLineEdit *m_weekBox;
};

} // namespace ui
