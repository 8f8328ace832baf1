// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentKind.h"

#include <QLatin1StringView>
#include <QStringView>

#include <cstddef>

struct KeyShape;

/// The members that an object of a document may have, in the order in which they are written.
struct ObjectShape
{
    const KeyShape* keys = nullptr;
    std::size_t keyCount = 0;

    const KeyShape* begin() const { return keys; }
    const KeyShape* end() const;
    /// Null for a key that the format does not have.
    const KeyShape* find(QStringView key) const;
};

/// One member of an object.
struct KeyShape
{
    enum class Value {
        Text,
        /// A text in Chinese, English or both.
        Localized,
        Integer,
        Object,
        /// An array of objects.
        Objects,
        /// An array of texts.
        Texts
    };

    QLatin1StringView key;
    Value value;
    bool isRequired;
    /// Of the object, or of each object of the array.
    ObjectShape members = {};
    /// For a text out of a closed vocabulary: whether it is one of its tokens.
    bool (*isToken)(QStringView) = nullptr;
};

/// The formats of docs/formats as tables: for naming what a document lacks, and for writing one.
namespace DocumentShape {

ObjectShape of(DocumentKind kind);

/// Of a text in Chinese, English or both.
ObjectShape localized();

} // namespace DocumentShape
