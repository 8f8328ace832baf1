// SPDX-License-Identifier: Apache-2.0

#include "InformationRepositoryError.h"

#include <utility>

QString InformationRepositoryError::localizedDescription() const
{
    switch (kind) {
    case Kind::UnsupportedVersion:
        return QStringLiteral("信息资料库版本 ") + QString::number(version) +
               QStringLiteral(" 暂不受支持。");
    case Kind::ApplicationSupportUnavailable:
        return QStringLiteral("无法找到本机应用数据目录。");
    }
    std::unreachable();
}
