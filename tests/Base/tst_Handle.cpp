#include "Base/Handle.h"

#include <QtTest>

#include <memory>

using fendrel::Handle;

class HandleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cancelsOnce();
    void movingHandsTheDutyOn();
    void cancellationMayReachItsOwnHandle();
};

void HandleTest::cancelsOnce() {
    int cancelled = 0;
    {
        Handle handle([&] { ++cancelled; });
        handle.reset();
        QCOMPARE(cancelled, 1);
    }
    QCOMPARE(cancelled, 1);
}

void HandleTest::movingHandsTheDutyOn() {
    QStringList cancelled;
    const auto named = [&](const QString& name) {
        return Handle([&cancelled, name] { cancelled.append(name); });
    };
    Handle kept = named(QStringLiteral("first"));
    {
        Handle other = named(QStringLiteral("second"));
        kept = std::move(other);
        QCOMPARE(cancelled, QStringList{QStringLiteral("first")});
    }
    QCOMPARE(cancelled.size(), 1);
    Handle last(std::move(kept));
    kept.reset(); // NOLINT(bugprone-use-after-move): that it is harmless is what is tested
    QCOMPARE(cancelled.size(), 1);
    last.reset();
    QCOMPARE(cancelled, (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
}

void HandleTest::cancellationMayReachItsOwnHandle() {
    auto handle = std::make_unique<Handle>();
    int cancelled = 0;
    *handle = Handle([&] {
        ++cancelled;
        if (handle)
            handle->reset();
    });
    handle.reset();
    QCOMPARE(cancelled, 1);
}

QTEST_APPLESS_MAIN(HandleTest)
#include "tst_Handle.moc"
