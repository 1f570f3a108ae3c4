#pragma once

#include "career/week.h"

#include <QDialog>

class QLabel;

namespace ui {

// "Tele": television has bought the week's match. The player acknowledges it with "OK",
// which books the fee once; the window cannot be closed any other way, so the fee is never
// lost by closing it.
class BroadcastScreen : public QDialog
{
    Q_OBJECT

public:
    explicit BroadcastScreen(game::Week &week, QWidget *parent = nullptr);

    // Esc and the frame's close are refused.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void acknowledge();

    game::Week &m_week;
    QLabel *m_channel;
};

} // namespace ui
