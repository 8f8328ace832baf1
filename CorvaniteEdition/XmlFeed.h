// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feed.h"
#include "Finding.h"

#include <QByteArray>

#include <expected>

/// RSS 2.0 and Atom 1.0.
namespace XmlFeed {

std::expected<Feed, Finding> read(const QString& file, const QByteArray& bytes);

} // namespace XmlFeed
