// SPDX-License-Identifier: Apache-2.0

#include "EditionWriter.h"

#include "DocumentShape.h"
#include "JsonWriter.h"

#include <QJsonArray>

namespace {

using Value = KeyShape::Value;

void writeObject(JsonWriter& writer, const QJsonObject& object, const ObjectShape& shape);

void writeArray(JsonWriter& writer, const QJsonArray& array, const KeyShape& key)
{
    writer.beginArray();
    for (const auto& element : array) {
        if (key.value == Value::Objects) {
            writeObject(writer, element.toObject(), key.members);
        } else {
            writer.string(element.toString());
        }
    }
    writer.endArray();
}

void writeValue(JsonWriter& writer, const QJsonValue& value, const KeyShape& key)
{
    switch (key.value) {
    case Value::Text:
        writer.string(value.toString());
        break;
    case Value::Localized:
        writeObject(writer, value.toObject(), DocumentShape::localized());
        break;
    case Value::Integer:
        writer.integer(value.toInteger());
        break;
    case Value::Object:
        writeObject(writer, value.toObject(), key.members);
        break;
    case Value::Objects:
    case Value::Texts:
        writeArray(writer, value.toArray(), key);
        break;
    }
}

void writeObject(JsonWriter& writer, const QJsonObject& object, const ObjectShape& shape)
{
    writer.beginObject();
    for (const KeyShape& key : shape) {
        const QJsonValue value = object.value(key.key);
        if (!value.isUndefined() && !value.isNull()) {
            writer.key(key.key);
            writeValue(writer, value, key);
        }
    }
    writer.endObject();
}

} // namespace

QByteArray EditionWriter::document(DocumentKind kind, const QJsonObject& root)
{
    JsonWriter writer;
    writeObject(writer, root, DocumentShape::of(kind));
    return writer.document();
}
