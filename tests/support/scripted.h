#pragma once

#include "dialogs.h"
#include "random.h"

#include <QString>
#include <QStringList>

#include <deque>

// Chance with its draws written in advance. When the script runs out it falls back on a
// seeded generator, so a test scripts only the draws it cares about.
class ScriptedRandom final : public game::Random
{
public:
    explicit ScriptedRandom(std::uint64_t seed = 7) : m_fallback(seed) {}

    void script(std::initializer_list<double> values) { m_values.insert(m_values.end(), values); }
    // Scripts the u that makes draw(n) give exactly `value`.
    void scriptDraw(int value, int n) { m_values.push_back((value - 0.5) / n); }
    double uniform() override;
    // How many values have been drawn, scripted or not.
    int draws() const { return m_draws; }

private:
    int m_draws = 0;
    std::deque<double> m_values;
    game::SystemRandom m_fallback;
};

// Records every message and answers questions from a script (No when the script is empty).
class ScriptedDialogs final : public game::Dialogs
{
public:
    struct Message {
        QString text;
        Icon icon;
        QString title;
    };

    void tell(const QString &text, Icon icon = Icon::None, const QString &title = {}) override;
    bool ask(const QString &title, const QString &text) override;

    void answer(std::initializer_list<bool> answers) { m_answers.insert(m_answers.end(), answers); }
    QStringList texts() const;
    // Every question asked, as "title|text".
    const QStringList &questions() const { return m_questions; }
    const std::vector<Message> &messages() const { return m_messages; }
    void clear() { m_messages.clear(), m_questions.clear(); }

private:
    std::vector<Message> m_messages;
    std::deque<bool> m_answers;
    QStringList m_questions;
};
