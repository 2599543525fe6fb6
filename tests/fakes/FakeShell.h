#pragma once

#include "Ports/Shell.h"

#include <QList>

#include <utility>

namespace fendrel {

class FakeShell final : public Shell {
public:
    void openAddress(const QUrl& address) override { addresses.append(address); }
    void reveal(const QStringList& paths) override { revealed.append(paths); }
    void composeMail(const Mail& mail, std::function<void(bool isTaken)> done) override {
        mails.append(mail);
        answerMail = std::move(done);
    }

    QList<QUrl> addresses;
    QList<QStringList> revealed;
    QList<Mail> mails;
    std::function<void(bool isTaken)> answerMail; ///< as the mail program does for the last mail
};

} // namespace fendrel
