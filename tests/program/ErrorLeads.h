// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// What the error of an action that was not saved begins with.
inline const QString notSaved = u"没有保存这次操作："_qs;

/// What the error of a start that could not read the workspace begins with.
inline const QString notRead = u"已有信息没有被覆盖："_qs;
