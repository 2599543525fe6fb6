#include "Platform/Linux/ModelServer/ModelServerRequest.h"

#include "Platform/Linux/ModelServer/ModelServerText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <initializer_list>
#include <utility>

namespace fendrel::ModelServerRequest {

using namespace Qt::StringLiterals;

namespace {

constexpr int tokenLimit = 300; // room for the longest answer that is allowed, in most scripts

// Models generate properties in the order in which the schema's text has them, and QJsonObject sorts its keys. So
// objects are put together as text.
using Members = QList<std::pair<QByteArray, QByteArray>>;

QByteArray object(const Members& members) {
    QByteArrayList written;
    for (const auto& [name, value] : members)
        written.append(name + ':' + value);
    return '{' + written.join(',') + '}';
}

QByteArray array(const QByteArrayList& values) {
    return '[' + values.join(',') + ']';
}

QByteArray strings(const QStringList& values) {
    return QJsonDocument(QJsonArray::fromStringList(values)).toJson(QJsonDocument::Compact);
}

QByteArray string(const QString& value) {
    const QByteArray written = strings({value});
    return written.mid(1, written.size() - 2);
}

QByteArray schemaOf(const SchemaProperty& property) {
    Members members;
    switch (property.kind) {
    case SchemaProperty::Kind::text:
        // Without a limit a weak model writes until its tokens are used up, and the answer is cut.
        members = {{R"("type")", R"("string")"}, {R"("maxLength")", QByteArray::number(propertyLimit)}};
        break;
    case SchemaProperty::Kind::choice:
        members = {{R"("type")", R"("string")"}, {R"("enum")", strings(property.choices)}};
        break;
    case SchemaProperty::Kind::boolean:
        members = {{R"("type")", R"("boolean")"}};
        break;
    }
    members.append({R"("description")", string(property.description)});
    return object(members);
}

QByteArray schemaOf(const QList<SchemaProperty>& properties) {
    Members members;
    QByteArrayList names;
    for (const SchemaProperty& property : properties) {
        names.append(string(property.name));
        members.append({names.last(), schemaOf(property)});
    }
    return object({{R"("type")", R"("object")"},
                   {R"("properties")", object(members)},
                   {R"("required")", array(names)},
                   {R"("additionalProperties")", "false"}});
}

QString allowedAnswers(const SchemaProperty& property) {
    switch (property.kind) {
    case SchemaProperty::Kind::choice:
        return u"one of "_s + property.choices.join(u", ");
    case SchemaProperty::Kind::boolean:
        return u"true or false"_s;
    case SchemaProperty::Kind::text:
        break;
    }
    return u"a short text"_s;
}

/// A grammar made of the schema shows the model neither what the properties mean nor what may come.
QString systemMessage(const Question& question) {
    QString text = question.instructions;
    if (!question.schema.isEmpty())
        text += u"\n\nAnswer with a JSON object of these properties, in this order:"_s;
    for (const SchemaProperty& property : question.schema)
        text += u"\n- %1 (%2): %3"_s.arg(property.name, allowedAnswers(property), property.description);
    return ModelServerText::plain(text);
}

QByteArray message(const QByteArray& role, const QString& content) {
    return object({{R"("role")", role}, {R"("content")", string(content)}});
}

QByteArray body(ModelProtocol protocol, const QString& model, const Question& question, int tokens) {
    const QByteArray limit = QByteArray::number(tokens);
    const QByteArray messages = array({message(R"("system")", systemMessage(question)),
                                       message(R"("user")", ModelServerText::untrusted(question.prompt))});
    Members members{{R"("model")", string(model)}, {R"("messages")", messages}, {R"("stream")", "false"}};
    // A model that thinks aloud first would use up its tokens, and the user's time.
    if (protocol == ModelProtocol::ollama) {
        members += {{R"("think")", "false"},
                    {R"("keep_alive")", R"("10m")"},
                    {R"("options")", object({{R"("temperature")", "0"}, {R"("num_predict")", limit}})}};
        if (!question.schema.isEmpty())
            members.append({R"("format")", schemaOf(question.schema)});
    } else {
        members += {{R"("temperature")", "0"},
                    {R"("max_tokens")", limit},
                    {R"("chat_template_kwargs")", R"({"enable_thinking":false})"}};
        if (!question.schema.isEmpty()) {
            const QByteArray named = object({{R"("name")", string(question.schemaName)},
                                             {R"("strict")", "true"},
                                             {R"("schema")", schemaOf(question.schema)}});
            members.append(
                {R"("response_format")", object({{R"("type")", R"("json_schema")"}, {R"("json_schema")", named}})});
        }
    }
    return object(members);
}

} // namespace

QByteArray path(ModelProtocol protocol) {
    return protocol == ModelProtocol::ollama ? "/api/chat" : "/v1/chat/completions";
}

QByteArray question(ModelProtocol protocol, const QString& model, const Question& question) {
    return body(protocol, model, question, tokenLimit);
}

QByteArray prewarming(ModelProtocol protocol, const QString& model, Question question) {
    question.prompt = u"Hello"_s; // some chat templates want somebody to speak
    return body(protocol, model, question, 1);
}

} // namespace fendrel::ModelServerRequest
