// The screen tests run the real widgets on Qt's offscreen platform.

#include "common/theme.h"
#include "common/translations.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    theme::apply(app);
    ui::installSpanish(app);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
