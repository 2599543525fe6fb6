#include "Platform/Linux/Desktop/CanberraSounds.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

const QDir folder(QStringLiteral(SOUNDS));
QByteArray heard; ///< what the player logged

void listen(QtMsgType, const QMessageLogContext&, const QString& text) {
    heard += text.toUtf8() + '\n';
}

} // namespace

class SoundsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Soft: no clicks at either end, far from clipping, and over soon.
    void areSoft() {
        const QStringList files = folder.entryList({u"*.wav"_s});
        QCOMPARE(files.size(), 4);
        for (const QString& name : files) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(file.size() < 30 * 1024, qPrintable(name));
            const QByteArray bytes = file.readAll();
            const auto rate = qFromLittleEndian<quint32>(bytes.constData() + 24);
            QList<int> samples;
            for (qsizetype index = 44; index + 1 < bytes.size(); index += 2)
                samples.append(std::abs(qFromLittleEndian<qint16>(bytes.constData() + index)));
            QVERIFY2(static_cast<double>(samples.size()) / rate < 0.6, qPrintable(name));
            QVERIFY2(samples.first() < 300 && samples.last() < 300, qPrintable(name));
            const int loudest = *std::ranges::max_element(samples);
            QVERIFY2(loudest > 3000 && loudest < 16384, qPrintable(name));
        }
    }

    // The library is found and asked. That nothing can be heard is told, and no more.
    void areSilentWithoutASoundSystem() {
        qputenv("CANBERRA_DRIVER", "nowhere");
        const auto before = qInstallMessageHandler(listen);
        {
            CanberraSounds sounds(folder.path());
            sounds.play(Sound::focusStart);
        }
        qInstallMessageHandler(before);
        QCOMPARE(heard, QByteArray("A sound was not played: No such driver\n"));
    }
};

QTEST_GUILESS_MAIN(SoundsTest)
#include "tst_Sounds.moc"
