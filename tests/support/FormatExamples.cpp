// SPDX-License-Identifier: Apache-2.0

#include "FormatExamples.h"

#include "EditedJson.h"
#include "FileTree.h"

#include <QJsonDocument>

QByteArray formatExample(const QString& name)
{
    return contentOf(QStringLiteral(FORMAT_EXAMPLES "/") + name);
}

QByteArray examplePack()
{
    return formatExample(u"information-pack.json"_qs);
}

QByteArray examplePackWith(std::initializer_list<std::pair<QString, QJsonValue>> edits)
{
    auto pack = QJsonDocument::fromJson(examplePack()).object();
    for (const auto& [path, value] : edits) {
        pack = editedJson(pack, path, value);
    }
    return QJsonDocument(pack).toJson(QJsonDocument::Compact);
}

QByteArray examplePackWith(const QString& path, const QJsonValue& value)
{
    return examplePackWith({{path, value}});
}
