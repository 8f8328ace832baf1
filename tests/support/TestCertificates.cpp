// SPDX-License-Identifier: Apache-2.0

#include "TestCertificates.h"

#include <QFile>
#include <QProcess>
#include <QSslKey>

TestCertificates::TestCertificates()
{
    requestCertificate(u"authority"_qs, u"127.0.0.1"_qs);
    openssl(u"x509 -req -in authority.csr -signkey authority.key -days 2 -out authority.pem"_qs);
}

void TestCertificates::trust() const
{
    auto tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates({QSslCertificate(read(u"authority.pem"_qs))});
    QSslConfiguration::setDefaultConfiguration(tls);
}

QSslConfiguration TestCertificates::signedBy(QLatin1StringView signer, const QString& address,
                                             int days) const
{
    requestCertificate(u"server"_qs, address);
    openssl(
        u"x509 -req -in server.csr -copy_extensions copy -days %1 -out server.pem %2"_qs.arg(days)
            .arg(signer));
    auto configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(read(u"server.pem"_qs)));
    configuration.setPrivateKey(QSslKey(read(u"server.key"_qs), QSsl::Ec));
    return configuration;
}

void TestCertificates::requestCertificate(const QString& name, const QString& address) const
{
    openssl(u"req -new -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout %1.key "
            "-subj /CN=%1 -addext subjectAltName=IP:%2 -out %1.csr"_qs.arg(name, address));
}

void TestCertificates::openssl(const QString& arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(u"openssl"_qs, arguments.split(u' '));
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("openssl %s: %s", qPrintable(arguments), process.readAllStandardError().constData());
    }
}

QByteArray TestCertificates::read(const QString& name) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s was not made.", qPrintable(name));
    }
    return file.readAll();
}
