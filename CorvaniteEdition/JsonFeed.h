// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feed.h"
#include "Finding.h"

#include <QByteArray>

#include <expected>

/// JSON Feed 1 and 1.1: https://www.jsonfeed.org/version/1.1/
namespace JsonFeed {

std::expected<Feed, Finding> read(const QString& file, const QByteArray& bytes);

} // namespace JsonFeed
