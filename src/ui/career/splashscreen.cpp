#include "splashscreen.h"

#include "common/artwork.h"

#include <QPainter>

namespace ui {

SplashScreen::SplashScreen(QWidget *parent) : QWidget(parent), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("frmSplash"));
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(kShowMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &SplashScreen::finish);
}

void SplashScreen::start()
{
    m_timer->start();
}

void SplashScreen::finish()
{
    m_timer->stop();
    emit finished();
}

void SplashScreen::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, artwork::title(size()));
}

} // namespace ui
