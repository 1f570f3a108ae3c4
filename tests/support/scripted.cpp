#include "scripted.h"

double ScriptedRandom::uniform()
{
    ++m_draws;
    if (m_values.empty())
        return m_fallback.uniform();
    const double value = m_values.front();
    m_values.pop_front();
    return value;
}

void ScriptedDialogs::tell(const QString &text, Icon icon, const QString &title)
{
    m_messages.push_back({text, icon, title});
}

bool ScriptedDialogs::ask(const QString &title, const QString &text)
{
    m_messages.push_back({text, Icon::None, title});
    m_questions << title + QLatin1Char('|') + text;
    if (m_answers.empty())
        return false;
    const bool answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

QStringList ScriptedDialogs::texts() const
{
    QStringList all;
    for (const Message &message : m_messages)
        all << message.text;
    return all;
}
