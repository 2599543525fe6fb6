#include "Control/Protocol.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace fendrel::control {

using namespace Qt::StringLiterals;

QString socketPath(const QString& dataFolder) {
    return dataFolder + u"/control.sock"_s;
}

QByteArray encode(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray encode(const Request& request) {
    QJsonObject options;
    for (auto option = request.options.begin(); option != request.options.end(); ++option)
        options.insert(option.key(), option.value());
    return encode(QJsonObject{{u"command"_s, request.command},
                              {u"arguments"_s, QJsonArray::fromStringList(request.arguments)},
                              {u"options"_s, options}});
}

std::optional<Request> decodeRequest(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    Request request{.command = object[u"command"].toString()};
    if (!command(request.command))
        return {};
    for (const auto& argument : object[u"arguments"].toArray())
        request.arguments.append(argument.toString());
    const QJsonObject options = object[u"options"].toObject();
    for (auto option = options.begin(); option != options.end(); ++option)
        request.options.insert(option.key(), option.value().toString());
    return request;
}

QJsonObject result(const QJsonValue& value) {
    return {{u"result"_s, value}};
}

QJsonObject error(const QString& text) {
    return {{u"error"_s, text}};
}

} // namespace fendrel::control
