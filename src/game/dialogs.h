#pragma once

#include <QString>

namespace game {

// How the game speaks to the player: a message to acknowledge, or a question with Yes and No.
// The game never draws a window; the screens provide message boxes and the tests a script.
class Dialogs
{
public:
    enum class Icon { None, Information, Exclamation };

    virtual ~Dialogs() = default;

    virtual void tell(const QString &text, Icon icon = Icon::None, const QString &title = {}) = 0;

    // True for Yes.
    virtual bool ask(const QString &title, const QString &text) = 0;
};

} // namespace game
