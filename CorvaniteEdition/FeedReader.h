// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feed.h"
#include "Finding.h"

#include <QByteArray>

#include <expected>

/// RSS 2.0, Atom 1.0 and JSON Feed. A feed is read whole or not at all, and nothing is fetched.
namespace FeedReader {

/// @param file named in findings
std::expected<Feed, Finding> read(const QString& file, const QByteArray& bytes);

} // namespace FeedReader
