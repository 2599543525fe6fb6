#include "Platform/Linux/ModelServer/ModelServerReply.h"

#include "Platform/Linux/ModelServer/ModelServerText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace fendrel::ModelServerReply {

using namespace Qt::StringLiterals;

namespace {

using Read = Result<LanguageModel::Answer, QString>;

/// What the model wrote; nothing when it did not end by itself or the reply has another form.
std::optional<QString> content(ModelProtocol protocol, const QByteArray& body) {
    const QJsonObject reply = QJsonDocument::fromJson(body).object();
    const bool isOllama = protocol == ModelProtocol::ollama;
    const QJsonObject choice = isOllama ? reply : reply["choices"_L1].toArray().first().toObject();
    const QJsonValue written = choice["message"_L1].toObject()["content"_L1];
    if (!written.isString() || choice[isOllama ? "done_reason"_L1 : "finish_reason"_L1].toString() == "length"_L1)
        return {};
    return written.toString();
}

/// Without the thoughts before it and the Markdown around it, which some models add whatever they are told.
QString bare(QString text) {
    if (const auto end = text.indexOf("</think>"_L1); end >= 0 && text.trimmed().startsWith("<think>"_L1))
        text = text.mid(end + 8);
    text = text.trimmed();
    if (text.startsWith("```"_L1) && text.endsWith("```"_L1)) {
        const auto firstLineEnd = text.indexOf(u'\n');
        text = firstLineEnd < 0 ? QString() : text.mid(firstLineEnd, text.size() - 3 - firstLineEnd).trimmed();
    }
    return text;
}

std::optional<QString> boundedText(const QString& text, qsizetype limit) {
    const QString clean = ModelServerText::plain(text).simplified();
    return clean.toUcs4().size() <= limit ? std::optional(clean) : std::nullopt;
}

std::optional<QString> valueOf(const SchemaProperty& property, const QJsonValue& value) {
    switch (property.kind) {
    case SchemaProperty::Kind::boolean:
        return value.isBool() ? std::optional(value.toBool() ? u"true"_s : u"false"_s) : std::nullopt;
    case SchemaProperty::Kind::choice:
        return value.isString() && property.choices.contains(value.toString()) ? std::optional(value.toString())
                                                                               : std::nullopt;
    case SchemaProperty::Kind::text:
        break;
    }
    return value.isString() ? boundedText(value.toString(), ModelServerRequest::propertyLimit) : std::nullopt;
}

} // namespace

Read read(ModelProtocol protocol, const QByteArray& body, const QList<SchemaProperty>& schema) {
    const auto written = content(protocol, body);
    if (!written)
        return Read::failure(u"the server's reply holds no whole answer"_s);
    const QString text = bare(*written);
    if (schema.isEmpty()) {
        const auto bounded = boundedText(text, ModelServerRequest::textLimit);
        return bounded && !bounded->isEmpty() ? Read(LanguageModel::Answer{{QString(), *bounded}})
                                              : Read::failure(u"the answer is empty or too long"_s);
    }
    const auto document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return Read::failure(u"the answer is no JSON object"_s);
    const QJsonObject object = document.object();
    LanguageModel::Answer answer;
    for (const SchemaProperty& property : schema) {
        const auto value = valueOf(property, object[property.name]);
        if (!value)
            return Read::failure(u"the answer's “%1” is missing or not allowed"_s.arg(property.name));
        answer.insert(property.name, *value);
    }
    if (object.size() != answer.size())
        return Read::failure(u"the answer has properties that were not asked for"_s);
    return answer;
}

} // namespace fendrel::ModelServerReply
