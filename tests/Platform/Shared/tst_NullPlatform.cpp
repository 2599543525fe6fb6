#include "Platform/Null/NullPlatform.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class NullPlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusesButNotFromInsideTheCall();
    void droppedQuestionsStayUnanswered();
};

void NullPlatformTest::refusesButNotFromInsideTheCall() {
    const auto platform = nullPlatform();
    QStringList answers;
    const auto question = platform.languageModel->ask(
        {}, [&](const auto& answer) { answers.append(answer ? u"answered"_s : u"no model"_s); });
    const auto request = platform.http->send({}, [&](const auto& answer) {
        answers.append(answer || answer.error().kind != HttpError::Kind::unreachable ? u"answered"_s
                                                                                     : u"no network"_s);
    });
    for (int count = 0; count < 2; ++count)
        platform.shell->composeMail({},
                                    [&](bool isTaken) { answers.append(isTaken ? u"taken"_s : u"no mail"_s); });
    QCOMPARE(answers, QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(answers, (QStringList{u"no model"_s, u"no network"_s, u"no mail"_s, u"no mail"_s}));
}

void NullPlatformTest::droppedQuestionsStayUnanswered() {
    auto platform = nullPlatform();
    int answers = 0;
    platform.languageModel->ask({}, [&](const auto&) { ++answers; }).reset();
    platform.http->send({}, [&](const auto&) { ++answers; }).reset();
    platform.shell->composeMail({}, [&](bool) { ++answers; });
    platform.shell.reset();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 0);
}

QTEST_GUILESS_MAIN(NullPlatformTest)
#include "tst_NullPlatform.moc"
