#include "Program.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(CorvaniteInformationPlugin)

int main(int argc, char* argv[])
{
    return runProgram(argc, argv, QStringLiteral(CORVANITE_SITE_ORIGIN),
                      QStringLiteral(CORVANITE_VERSION));
}
