// SPDX-License-Identifier: Apache-2.0

#include "KeysPage.h"

#include <QStringList>

QString KeysPage::title()
{
    return u"键盘操作"_qs;
}

QString KeysPage::description()
{
    QStringList lines;
    const auto all = rows();
    for (const auto& row : all) {
        lines.append(row.name());
    }
    return lines.join(u'\n');
}

QList<LabelledTextRow> KeysPage::rows()
{
    return {{u"Ctrl+1 … Ctrl+5"_qs, u"今天、已收下、周报、往期、信源"_qs},
            {u"Ctrl+N"_qs, u"添加信息"_qs},
            {u"Ctrl+Enter"_qs, u"在添加信息里交给 Corvanite"_qs},
            {u"Ctrl+R、F5"_qs, u"同步站点"_qs},
            {u"Ctrl+F"_qs, u"搜索已收下的内容"_qs},
            {u"Ctrl+Z"_qs, u"撤销上一步；在文字框里撤销输入"_qs},
            {u"Esc"_qs, u"关闭最上面的面板或回执；在搜索框里清空文字"_qs},
            {u"Alt+←"_qs, u"从往期的一天回到索引"_qs},
            {u"Tab、Shift+Tab"_qs, u"到下一处、回上一处"_qs},
            {u"←、→"_qs, u"在页面切换和栏目筛选里移动"_qs},
            {u"↑、↓、Home、End"_qs, u"在一列条目里移动"_qs},
            {u"Page Up、Page Down、空格"_qs, u"翻页"_qs},
            {u"Enter、空格"_qs, u"按下当前一处；在卡片和条目上打开脉络"_qs},
            {u"F1、Ctrl+/"_qs, u"打开这份说明"_qs}};
}
