#include "Control/fendrelctl/Print.h"

#include <QJsonArray>
#include <QJsonObject>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

QString scalar(const QJsonValue& value) {
    if (value.isNull() || value.isUndefined())
        return u"-"_s;
    if (value.isBool())
        return value.toBool() ? u"yes"_s : u"no"_s;
    return value.toVariant().toString();
}

void print(QString& text, const QJsonValue& value, int depth) {
    const QString indent(qsizetype{2} * depth, u' ');
    if (value.isArray()) {
        for (const auto& item : value.toArray()) {
            if (item.isObject() || item.isArray())
                print(text, item, depth);
            else
                text += indent + scalar(item) + u'\n';
        }
        return;
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonValue part = member.value();
        const bool isEmpty =
            (part.isObject() && part.toObject().isEmpty()) || (part.isArray() && part.toArray().isEmpty());
        if (!isEmpty && (part.isObject() || part.isArray())) {
            text += indent + member.key() + u":\n"_s;
            print(text, part, depth + 1);
        } else {
            text += indent + member.key() + u": "_s + (isEmpty ? u"-"_s : scalar(part)) + u'\n';
        }
    }
}

} // namespace

QString plainText(const QJsonValue& value) {
    if (value.isNull() || value.isUndefined())
        return {};
    if (!value.isObject() && !value.isArray())
        return scalar(value) + u'\n';
    QString text;
    print(text, value, 0);
    return text;
}

QString modesText(const QJsonValue& modes) {
    QString text;
    for (const auto& each : modes.toArray()) {
        const QJsonObject mode = each.toObject();
        text += mode[u"id"].toString() + u'\t' + mode[u"name"].toString() +
                (mode[u"current"].toBool() ? u"\t*\n"_s : u"\n"_s);
    }
    return text;
}

QString answersText(const QJsonValue& answers) {
    QString text;
    for (const auto& answer : answers.toArray()) {
        QStringList columns;
        for (const QString& name : {u"key"_s, u"mode"_s, u"what"_s, u"source"_s, u"certainty"_s, u"date"_s})
            columns.append(scalar(answer.toObject()[name]).simplified());
        text += columns.join(u'\t') + u'\n';
    }
    return text;
}

QString contextsText(const QJsonValue& contexts) {
    QString text;
    for (const auto& each : contexts.toArray()) {
        const QJsonObject context = each.toObject();
        QStringList open;
        for (const auto& app : context[u"apps"].toArray())
            open.append(app.toString());
        for (const auto& part : {u"pages"_s, u"documents"_s}) {
            for (const auto& item : context[part].toArray())
                open.append(item[u"url"].toString());
        }
        QStringList columns;
        for (const QString& name : {u"mode"_s, u"savedAt"_s, u"note"_s})
            columns.append(scalar(context[name]).simplified());
        text += columns.join(u'\t') + u'\t' + open.join(u", "_s) + u'\n';
    }
    return text;
}

QString widgetsText(const QJsonValue& widgets) {
    const auto pairs = [](const QJsonValue& value) {
        QStringList texts;
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            texts.append(u"%1 (%2)"_s.arg(member.key(), scalar(*member)));
        return texts.isEmpty() ? u"-"_s : texts.join(u", "_s);
    };
    QString text;
    for (const auto& each : widgets.toArray()) {
        const QJsonObject widget = each.toObject();
        QStringList sizes;
        for (const auto& size : widget[u"sizes"].toArray())
            sizes.append(size.toString());
        text += QStringList{widget[u"id"].toString(),
                            widget[u"title"].toString(),
                            widget[u"category"].toString(),
                            sizes.join(u", "_s),
                            widget[u"hasCard"].toBool() ? u"card"_s : u"no card yet"_s,
                            pairs(widget[u"modes"]),
                            pairs(widget[u"accounts"])}
                    .join(u'\t') +
                u'\n';
    }
    return text;
}

} // namespace fendrel::control
