// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WorkbenchPage.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

/// What the window says around the surfaces: of a refresh, and of a newer build.
class FramePage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    /// What the sync button does, and how it ended last.
    Q_PROPERTY(QString syncHelp READ syncHelp NOTIFY textsChanged FINAL)
    /// How the last refresh ended; empty while there is nothing to say.
    Q_PROPERTY(QString syncNote READ syncNote NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool syncFailed READ syncFailed NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool hasUpdate READ hasUpdate NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString updateText READ updateText NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString updateHelp READ updateHelp NOTIFY textsChanged FINAL)
    /// Empty where the build's address may not be opened.
    Q_PROPERTY(QString updateAddress READ updateAddress NOTIFY textsChanged FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    const QString& syncHelp() const { return m_texts.syncHelp; }
    const QString& syncNote() const { return m_texts.syncNote; }
    bool syncFailed() const { return m_texts.syncFailed; }
    bool hasUpdate() const { return !m_texts.updateText.isEmpty(); }
    const QString& updateText() const { return m_texts.updateText; }
    const QString& updateHelp() const { return m_texts.updateHelp; }
    const QString& updateAddress() const { return m_texts.updateAddress; }

Q_SIGNALS:
    void textsChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    struct Texts
    {
        QString syncHelp;
        QString syncNote;
        bool syncFailed = false;
        QString updateText;
        QString updateHelp;
        QString updateAddress;

        friend bool operator==(const Texts&, const Texts&) = default;
    };

    Texts m_texts;
};
