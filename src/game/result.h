#pragma once

#include <QString>

namespace game {

// The outcome of a routine that writes: either it completed, or it left nothing behind and
// says why in a Spanish sentence the screen can show as it stands.
class [[nodiscard]] Result
{
public:
    static Result success() { return Result(); }
    static Result failure(const QString &message) { return Result(message); }

    bool ok() const { return !m_failed; }
    explicit operator bool() const { return ok(); }
    const QString &message() const { return m_message; }

private:
    Result() = default;
    explicit Result(const QString &message) : m_failed(true), m_message(message) {}

    bool m_failed = false;
    QString m_message;
};

} // namespace game
