#pragma once

#include "dialogs.h"

class QWidget;

namespace ui {

// The game's messages and questions as message boxes over the window the player is using.
class MessageBoxDialogs final : public game::Dialogs
{
public:
    void tell(const QString &text, Icon icon = Icon::None, const QString &title = {}) override;
    bool ask(const QString &title, const QString &text) override;
};

} // namespace ui
