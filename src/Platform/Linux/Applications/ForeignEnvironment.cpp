#include "Platform/Linux/Applications/ForeignEnvironment.h"

#include <QFile>

namespace fendrel {

using namespace Qt::StringLiterals;

QProcessEnvironment foreignEnvironment() {
    QFile file(u"/proc/self/environ"_s);
    if (!file.open(QIODevice::ReadOnly))
        return QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const QByteArray& variable : file.readAll().split('\0')) {
        if (const auto equals = variable.indexOf('='); equals > 0)
            environment.insert(QFile::decodeName(variable.first(equals)),
                               QFile::decodeName(variable.sliced(equals + 1)));
    }
    return environment;
}

} // namespace fendrel
