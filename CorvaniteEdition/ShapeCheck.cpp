// SPDX-License-Identifier: Apache-2.0

#include "ShapeCheck.h"

#include "DocumentShape.h"
#include "JsonPlace.h"

#include <QJsonArray>

#include <cmath>

namespace {

using Value = KeyShape::Value;

QString typeName(Value value)
{
    switch (value) {
    case Value::Text:
        return u"文字"_qs;
    case Value::Localized:
        return u"带 zh 的对象"_qs;
    case Value::Integer:
        return u"整数"_qs;
    case Value::Object:
        return u"对象"_qs;
    case Value::Objects:
        return u"由对象组成的数组"_qs;
    case Value::Texts:
        break;
    }
    return u"由文字组成的数组"_qs;
}

bool isMissing(const QJsonValue& value)
{
    return value.isUndefined() || value.isNull();
}

bool isWholeNumber(const QJsonValue& value)
{
    constexpr double limit = 9'223'372'036'854'775'808.0;
    const double number = value.toDouble(limit);
    return number >= -limit && number < limit && number == std::trunc(number);
}

bool hasType(const QJsonValue& value, Value wanted)
{
    switch (wanted) {
    case Value::Text:
        return value.isString();
    case Value::Integer:
        return isWholeNumber(value);
    case Value::Localized:
    case Value::Object:
        return value.isObject();
    case Value::Objects:
    case Value::Texts:
        break;
    }
    return value.isArray();
}

ObjectShape membersOf(const KeyShape& key)
{
    return key.value == Value::Localized ? DocumentShape::localized() : key.members;
}

/// Visits every object that the format has a table for, with that table.
template <typename Visit>
void forEachObject(const QJsonObject& object, const ObjectShape& shape, const QString& place,
                   const Visit& visit)
{
    visit(object, shape, place);
    for (const KeyShape& key : shape) {
        const QJsonValue value = object.value(key.key);
        const QString valuePlace = JsonPlace::member(place, key.key);
        if (value.isObject() && membersOf(key).keyCount > 0) {
            forEachObject(value.toObject(), membersOf(key), valuePlace, visit);
        }
        if (value.isArray() && key.value == Value::Objects) {
            const QJsonArray elements = value.toArray();
            for (qsizetype index = 0; index < elements.size(); ++index) {
                if (elements[index].isObject()) {
                    forEachObject(elements[index].toObject(), key.members,
                                  JsonPlace::element(valuePlace, index), visit);
                }
            }
        }
    }
}

void findWrongElements(const QJsonArray& elements, const KeyShape& key, const QString& place,
                       Findings& findings)
{
    const Value wanted = key.value == Value::Objects ? Value::Object : Value::Text;
    for (qsizetype index = 0; index < elements.size(); ++index) {
        if (!hasType(elements[index], wanted)) {
            findings.error(JsonPlace::element(place, index),
                           u"类型不对：这里要%1"_qs.arg(typeName(wanted)));
        }
    }
}

void findRefusalsOf(const QJsonObject& object, const ObjectShape& shape, const QString& place,
                    Findings& findings)
{
    for (const KeyShape& key : shape) {
        const QJsonValue value = object.value(key.key);
        const QString valuePlace = JsonPlace::member(place, key.key);
        if (isMissing(value)) {
            if (key.isRequired) {
                findings.error(valuePlace, u"缺少这一项：请补上%1"_qs.arg(typeName(key.value)));
            }
        } else if (!hasType(value, key.value)) {
            findings.error(valuePlace, u"类型不对：这里要%1"_qs.arg(typeName(key.value)));
        } else if (value.isArray()) {
            findWrongElements(value.toArray(), key, valuePlace, findings);
        }
    }
}

void findOdditiesOf(const QJsonObject& object, const ObjectShape& shape, const QString& place,
                    Findings& findings)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        const KeyShape* key = shape.find(member.key());
        const QString memberPlace = JsonPlace::member(place, member.key());
        if (!key) {
            findings.hint(memberPlace, u"格式里没有这一项，程序不会读它：请核对拼写，或者去掉"_qs);
        } else if (key->isToken && !key->isToken(member.value().toString())) {
            findings.hint(memberPlace, u"“%1”不在词表里，程序会按默认的处理：请核对拼写"_qs.arg(
                                           member.value().toString()));
        } else if (key->value == Value::Localized) {
            const QJsonObject text = member.value().toObject();
            if (isMissing(text.value(u"zh")) && !isMissing(text.value(u"en"))) {
                findings.hint(memberPlace, u"只有英文：请补上 zh"_qs);
            }
        }
    }
}

} // namespace

void ShapeCheck::findRefusals(const EditionDocument& document, Findings& findings)
{
    forEachObject(document.root, DocumentShape::of(document.kind), JsonPlace::root,
                  [&](const QJsonObject& object, const ObjectShape& shape, const QString& place) {
                      findRefusalsOf(object, shape, place, findings);
                  });
}

void ShapeCheck::findOddities(const EditionDocument& document, Findings& findings)
{
    forEachObject(document.root, DocumentShape::of(document.kind), JsonPlace::root,
                  [&](const QJsonObject& object, const ObjectShape& shape, const QString& place) {
                      findOdditiesOf(object, shape, place, findings);
                  });
}
