#include "App/ControllerWorld.h"
#include "UI/Images/AppIcons.h"
#include "UI/Settings/AnswersController.h"

#include <QSignalSpy>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct World : ControllerWorld {
    World() {
        launch();
        answer("old.org", "writing", Source::model);
        answer("middle.org", "social", Source::you);
        answer("new.org", nullptr, Source::model);
        controller->classifier().replaceAnswers(learned);
        icons.emplace(controller->workspace());
        answers.emplace(*controller, *icons);
    }
    void answer(const char* host, const char* mode, Source source) {
        const auto modeID = mode ? std::optional(QString::fromLatin1(mode)) : std::nullopt;
        learned.insert(
            QString::fromLatin1(host),
            {.verdict = {.modeID = modeID, .what = u"Thing of "_s + QString::fromLatin1(host), .source = source},
             .date = WallTime(std::chrono::hours(learned.size() + 1))});
    }
    QString rows() {
        QStringList names;
        for (int row = 0; row < answers->answers()->rowCount(); ++row)
            names.append(answers->answers()->index(row).data().toString());
        return names.join(u' ');
    }
    int choice(const char* name) {
        const QVariantList choices = answers->choices();
        for (int index = 0; index < choices.size(); ++index) {
            if (choices[index].toMap()[u"name"_s] == QString::fromLatin1(name))
                return index;
        }
        return -1;
    }

    LearnedAnswers learned;
    std::optional<AppIcons> icons;
    std::optional<AnswersController> answers;
};

} // namespace

class AnswersModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changesRowByRow() {
        World world;
        AnswersModel& model = *world.answers->answers();
        const QSignalSpy resets(&model, &AnswersModel::modelReset);
        QSignalSpy inserted(&model, &AnswersModel::rowsInserted);
        QSignalSpy removed(&model, &AnswersModel::rowsRemoved);
        QSignalSpy changed(&model, &AnswersModel::dataChanged);
        QCOMPARE(world.rows(), u"new.org middle.org old.org"_s);
        world.answers->change(u"old.org"_s, world.choice("Social"));
        QCOMPARE(world.rows(), u"new.org middle.org old.org"_s); // it is the newest now, yet stays
        QCOMPARE(changed.last()[0].toModelIndex().row(), 2);
        QCOMPARE(world.controller->classifier().answers()[u"old.org"_s].verdict.modeID, u"social"_s);
        QCOMPARE(world.controller->classifier().answers()[u"old.org"_s].verdict.source, Source::you);
        world.answers->change(u"middle.org"_s, world.choice("No mode"));
        QCOMPARE(world.controller->classifier().answers()[u"middle.org"_s].verdict.modeID, std::nullopt);
        world.controller->drift().correct(SiteSubject{.host = u"newest.org"_s}, {});
        QCOMPARE(world.rows(), u"newest.org new.org middle.org old.org"_s);
        world.answers->forget(u"new.org"_s);
        QCOMPARE(world.rows(), u"newest.org middle.org old.org"_s);
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(removed[0][1].toInt(), 1);
        QCOMPARE(resets.size(), 0);
    }

    void filters() {
        World world;
        world.answers->search(u" NEW thing "_s);
        QCOMPARE(world.rows(), u"new.org"_s);
        world.answers->search({});
        world.answers->onlyMode(world.choice("No mode"));
        QCOMPARE(world.rows(), u"new.org"_s);
        world.answers->change(u"new.org"_s, world.choice("Social")); // fits no longer
        QCOMPARE(world.rows(), QString());
        world.answers->onlyMode(world.choice("Social"));
        QCOMPARE(world.rows(), u"new.org middle.org"_s);
        world.controller->engine().deleteMode(u"social"_s);
        world.answers->onlyMode(-1);
        world.answers->onlyFrom(0);
        QCOMPARE(world.rows(), u"old.org"_s);
        world.answers->onlyFrom(-1);
        QCOMPARE(world.rows(), u"new.org middle.org old.org"_s);
        world.answers->onlyMode(world.choice("No mode")); // what was of a mode that is gone is of none
        QCOMPARE(world.rows(), u"new.org middle.org"_s);
    }

    void asksBeforeAllIsForgotten() {
        World world;
        world.answers->askToForgetAll();
        world.lastAlert.answered(1);
        QCOMPARE(world.answers->total(), 3);
        world.answers->askToForgetAll();
        world.lastAlert.answered(0);
        QCOMPARE(world.answers->total(), 0);
        QCOMPARE(world.rows(), QString());
    }
};

QTEST_MAIN(AnswersModelTest)
#include "tst_AnswersModel.moc"
