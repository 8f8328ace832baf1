// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

/// Bodies for a site to send.
namespace SampleBytes {

/// Text that hardly compresses.
QByteArray noise(qsizetype size);

QByteArray gzipped(const QByteArray& bytes);

} // namespace SampleBytes
