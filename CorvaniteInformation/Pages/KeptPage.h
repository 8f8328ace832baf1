// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "KeptRow.h"
#include "RowListModel.h"
#include "WorkbenchPage.h"

#include <QProperty>
#include <QString>

/// The kept surface.
class KeptPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString eyebrow READ eyebrow NOTIFY textsChanged FINAL)
    /// There is no row; `emptyTitle` and `emptyMessage` say why.
    Q_PROPERTY(bool empty READ empty NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString emptyMessage READ emptyMessage NOTIFY textsChanged FINAL)
    /// Rows of `keptRow`: the kept signals, then what the reader handed in.
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    const QString& eyebrow() const { return m_texts.value().eyebrow; }
    bool empty() const { return m_texts.value().empty; }
    const QString& emptyTitle() const { return m_texts.value().emptyTitle; }
    const QString& emptyMessage() const { return m_texts.value().emptyMessage; }
    RowListModel<KeptRow>* rows() { return &m_rows; }

    /// Takes the row's signal or hand-in out of what is kept.
    Q_INVOKABLE void remove(const KeptRow& row);

Q_SIGNALS:
    void textsChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    struct Texts
    {
        QString eyebrow;
        bool empty = false;
        QString emptyTitle;
        QString emptyMessage;

        friend bool operator==(const Texts&, const Texts&) = default;
    };

    Q_OBJECT_BINDABLE_PROPERTY(KeptPage, KeptPage::Texts, m_texts, &KeptPage::textsChanged)
    RowListModel<KeptRow> m_rows;
};
