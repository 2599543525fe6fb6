#include "Base/Handle.h"

#include <QtTest>

#include <memory>

using fendrel::Handle;
using namespace Qt::StringLiterals;

class HandleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cancelsOnceHoweverItIsMoved() {
        QStringList cancelled;
        const auto named = [&](const QString& name) { return Handle([&cancelled, name] { cancelled.append(name); }); };
        Handle kept = named(u"first"_s);
        {
            Handle other = named(u"second"_s);
            kept = std::move(other);
            QCOMPARE(cancelled, QStringList{u"first"_s});
        }
        {
            Handle last(std::move(kept));
            kept.reset(); // NOLINT(bugprone-use-after-move): that it is harmless is what is tested
            QCOMPARE(cancelled.size(), 1);
            last.reset();
        }
        QCOMPARE(cancelled, (QStringList{u"first"_s, u"second"_s}));
    }

    void cancellationMayReachItsOwnHandle() {
        int cancelled = 0;
        Handle handle([&] {
            ++cancelled;
            handle.reset();
        });
        handle.reset();
        QCOMPARE(cancelled, 1);
    }
};

QTEST_APPLESS_MAIN(HandleTest)
#include "tst_Handle.moc"
