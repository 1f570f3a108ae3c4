#pragma once

#include <QTimer>
#include <QWidget>

namespace ui {

// The title: the game's picture for five seconds, then the menu.
class SplashScreen : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kShowMilliseconds = 5000;

    explicit SplashScreen(QWidget *parent = nullptr);

    // Starts the five seconds; a test may call finish() instead of waiting.
    void start();
    void finish();

signals:
    void finished();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer *m_timer;
};

} // namespace ui
