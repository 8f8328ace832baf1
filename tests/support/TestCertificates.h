// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTemporaryDir>

/// A certificate authority made for one run of a test, and TLS servers' certificates of every kind.
class TestCertificates
{
public:
    TestCertificates();

    /// Has this process trust the authority, and no other.
    void trust() const;

    /// For 127.0.0.1.
    QSslConfiguration trusted() const { return signedBy(authoritySigns, u"127.0.0.1"_qs, 2); }
    QSslConfiguration forAnotherHost() const
    {
        return signedBy(authoritySigns, u"192.0.2.1"_qs, 2);
    }
    QSslConfiguration expired() const { return signedBy(authoritySigns, u"127.0.0.1"_qs, -1); }
    QSslConfiguration selfSigned() const { return signedBy(selfSigns, u"127.0.0.1"_qs, 2); }

private:
    static constexpr QLatin1StringView authoritySigns{"-CA authority.pem -CAkey authority.key"};
    static constexpr QLatin1StringView selfSigns{"-signkey server.key"};

    QSslConfiguration signedBy(QLatin1StringView signer, const QString& address, int days) const;
    void requestCertificate(const QString& name, const QString& address) const;
    void openssl(const QString& arguments) const;
    QByteArray read(const QString& name) const;

    QTemporaryDir m_folder;
};
