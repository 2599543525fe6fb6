#include "Control/ControlClient.h"
#include "Control/fendrelctl/Documents.h"
#include "Control/fendrelctl/Print.h"
#include "Control/fendrelctl/SecretInput.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { exitDone = 0, exitBadUse = 2, exitNotRunning = 3 };

void print(FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

int fail(const QString& message, ExitStatus status) {
    print(stderr, u"fendrelctl: "_s + message + u'\n');
    return status;
}

QString jsonText(const QJsonValue& value) {
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact)) + u'\n';
    // A document holds only objects and lists: other values are printed as the one item of a list.
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2)) + u'\n';
}

/// The application was started in another folder.
Request withWholePaths(Request request) {
    const QList<Parameter>& parameters = command(request.command)->parameters;
    for (qsizetype index = 0; index < std::min(parameters.size(), request.arguments.size()); ++index) {
        if (parameters[index].takes == Takes::file)
            request.arguments[index] = QFileInfo(request.arguments[index]).absoluteFilePath();
    }
    return request;
}

int run(const Request& request, bool asJson) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Fendrel"_s;
    ControlClient client;
    if (!client.connectTo(socketPath(folder)))
        return fail(u"Fendrel is not running"_s, exitNotRunning);
    const bool isStream = command(request.command)->isStream;
    int status = exitDone;
    const bool isAnswered = client.send(request, [&](const QJsonObject& answer) {
        if (isStream) {
            print(stdout, jsonText(answer));
            return !std::ferror(stdout);
        }
        if (answer.contains(u"error"))
            status = fail(answer[u"error"].toString(), exitBadUse);
        else if (asJson)
            print(stdout, jsonText(answer[u"result"]));
        else
            print(stdout, request.command == u"modes"          ? modesText(answer[u"result"])
                          : request.command == u"answers"      ? answersText(answer[u"result"])
                          : request.command == u"context list" ? contextsText(answer[u"result"])
                          : request.command == u"widgets"      ? widgetsText(answer[u"result"])
                                                               : plainText(answer[u"result"]));
        return false;
    });
    if (!isAnswered && !isStream)
        return fail(u"Fendrel does not answer"_s, exitNotRunning);
    return status;
}

} // namespace

int main(int argc, char* argv[]) {
    QStringList words;
    for (int index = 1; index < argc; ++index)
        words.append(QString::fromLocal8Bit(argv[index]));
    if (words == QStringList{u"--help"_s} || words == QStringList{u"-h"_s}) {
        print(stdout, Documents::help());
        return exitDone;
    }
    if (words == QStringList{u"--version"_s}) {
        print(stdout, u"fendrelctl "_s + QStringLiteral(FENDREL_VERSION) + u'\n');
        return exitDone;
    }
    if (words.size() == 2 && words[0] == "--generate"_L1) {
        const QHash<QString, QString (*)()> documents{{u"man"_s, Documents::manualPage},
                                                      {u"bash"_s, Documents::bashCompletion},
                                                      {u"zsh"_s, Documents::zshCompletion},
                                                      {u"fish"_s, Documents::fishCompletion}};
        const auto document = documents.constFind(words[1]);
        if (document == documents.constEnd())
            return fail(u"nothing is called '%1'"_s.arg(words[1]), exitBadUse);
        print(stdout, (*document)());
        return exitDone;
    }
    const bool asJson = words.removeAll(u"--json"_s) > 0;
    const Parsed parsed = parse(words);
    if (!parsed.request)
        return fail(parsed.error, exitBadUse);
    Request request = withWholePaths(*parsed.request);
    if (command(request.command)->takesSecret) {
        const auto secret = readSecret(u"Key of %1: "_s.arg(request.arguments.first()));
        if (!secret)
            return fail(u"a key is expected on standard input"_s, exitBadUse);
        request.options.insert(secretOption, *secret);
    }
    return run(request, asJson);
}
