#pragma once

#include <QString>

#include <vector>

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

// Messages that wait for what they tell to be written. A routine notes them as it goes and
// tells them, in their order, once its transaction has committed; a routine that failed
// tells none, so the player never reads of a signing or a sale that did not happen.
//
//   Announcements told;
//   if (store.run([&] { ...; told.add(u"Has Fichado a ..."_s, Dialogs::Icon::Information); }))
//       told.tellTo(dialogs);
class Announcements
{
public:
    void add(const QString &text, Dialogs::Icon icon = Dialogs::Icon::None) { m_messages.push_back({text, icon}); }
    void append(const Announcements &other)
    {
        m_messages.insert(m_messages.end(), other.m_messages.begin(), other.m_messages.end());
    }
    void clear() { m_messages.clear(); }
    void tellTo(Dialogs &dialogs) const
    {
        for (const Message &message : m_messages)
            dialogs.tell(message.text, message.icon);
    }

private:
    struct Message
    {
        QString text;
        Dialogs::Icon icon;
    };
    std::vector<Message> m_messages;
};

} // namespace game
