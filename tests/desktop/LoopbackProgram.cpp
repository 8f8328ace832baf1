// SPDX-License-Identifier: Apache-2.0

// The program over a site of the test's own: LOOPBACK_SITE_ORIGIN names it, and LOOPBACK_AUTHORITY,
// where the site is one that needs it, a file with the certificate that is trusted as the system's
// are.

#include "Program.h"

#include <QCoreApplication>
#include <QSslConfiguration>

namespace {

void trustAuthority()
{
    const QString authority = qEnvironmentVariable("LOOPBACK_AUTHORITY");
    if (authority.isEmpty()) {
        return;
    }
    auto tls = QSslConfiguration::defaultConfiguration();
    if (!tls.addCaCertificates(authority)) {
        qFatal("There is no certificate in %s", qUtf8Printable(authority));
    }
    QSslConfiguration::setDefaultConfiguration(tls);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(trustAuthority)

int main(int argc, char* argv[])
{
    return runProgram(argc, argv, qEnvironmentVariable("LOOPBACK_SITE_ORIGIN"), u"1.2.3"_qs);
}
