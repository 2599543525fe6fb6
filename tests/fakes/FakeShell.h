#pragma once

#include "Ports/Shell.h"

#include <QList>

#include <deque>
#include <utility>

namespace fendrel {

class FakeShell final : public Shell {
public:
    void openAddress(const QUrl& address) override { addresses.append(address); }
    void reveal(const QStringList& paths) override { revealed.append(paths); }
    void composeMail(const Mail& mail, std::function<void(bool isTaken)> done) override {
        mails.append(mail);
        m_waiting.push_back(std::move(done));
    }

    /// The mail program takes the oldest mail that waits, or refuses it. Returns false when none waits.
    bool answerMail(bool isTaken) {
        if (m_waiting.empty())
            return false;
        const auto done = std::move(m_waiting.front());
        m_waiting.pop_front();
        done(isTaken);
        return true;
    }

    QList<QUrl> addresses;
    QList<QStringList> revealed;
    QList<Mail> mails;

private:
    std::deque<std::function<void(bool)>> m_waiting;
};

} // namespace fendrel
