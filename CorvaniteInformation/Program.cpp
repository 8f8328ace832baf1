#include "Program.h"

#include "AppearancePortal.h"
#include "InformationModel.h"
#include "InformationSeed.h"
#include "LocalFileManager.h"
#include "NetworkSiteClient.h"
#include "ProgramInstance.h"
#include "SchemePalette.h"
#include "WindowActivation.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace {

double secondsNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
}

std::optional<InformationWorkspaceRepository> repository(const LocalFileManager& fileManager)
{
    auto live = InformationWorkspaceRepository::live(fileManager);
    return live ? std::optional(*std::move(live)) : std::nullopt;
}

} // namespace

int runProgram(int argc, char* argv[], const QString& siteOrigin, const QString& version)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"corvanite-information"_qs);
    QGuiApplication::setApplicationVersion(version);
    QGuiApplication::setDesktopFileName(u"example.corvanite.information"_qs);
    QGuiApplication::setWindowIcon(
        QIcon(u":/qt/qml/CorvaniteInformation/icons/app-icon-128.png"_qs));
    constexpr double nativeTextBelowPixelRatio = 1.5;
    QQuickWindow::setTextRenderType(application.devicePixelRatio() < nativeTextBelowPixelRatio
                                        ? QQuickWindow::NativeTextRendering
                                        : QQuickWindow::QtTextRendering);

    const auto environment = QProcessEnvironment::systemEnvironment();
    const LocalFileManager machine(LocalFileManager::applicationSupportDirectory(environment));
    const ProgramInstance instance(InformationPackSync::liveDirectory(machine), machine,
                                   environment);
    if (instance.standing() == ProgramInstance::Standing::Later) {
        return EXIT_SUCCESS;
    }
    const LocalFileManager fileManager(instance.standing() == ProgramInstance::Standing::First
                                           ? machine.applicationSupportDirectory()
                                           : std::nullopt);

    AppearancePortal appearance(QDBusConnection::sessionBus());
    QObject::connect(&appearance, &AppearancePortal::colorSchemeChanged, [](auto colorScheme) {
        QGuiApplication::setPalette(schemePalette(colorScheme));
    });

    const auto site = ProductSite::fromOrigin(siteOrigin);
    if (!site) {
        qFatal("The program was built for a site that is not secure: %s",
               qUtf8Printable(siteOrigin));
    }
    NetworkSiteClient siteClient(*site, NetworkSiteClient::Limits());
    InformationModel model({.fileManager = fileManager,
                            .now = secondsNow,
                            .seedHistory = InformationSeed::selectionHistory(),
                            .site = siteClient,
                            .allowedHost = site->host(),
                            .runningVersion = version},
                           InformationContent::atStart(fileManager), repository(fileManager));

    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_qs);
    engine.setInitialProperties({{u"workbench"_qs, QVariant::fromValue(&model)},
                                 {u"appearance"_qs, QVariant::fromValue(&appearance)},
                                 {u"siteOrigin"_qs, siteOrigin}});
    engine.load(QUrl(u"qrc:/qt/qml/CorvaniteInformation/InformationWorkbenchView.qml"_qs));
    if (engine.rootObjects().isEmpty()) {
        return EXIT_FAILURE;
    }
    auto* const window = qobject_cast<QWindow*>(engine.rootObjects().constFirst());
    QObject::connect(&instance, &ProgramInstance::activationRequested, window,
                     [window] { WindowActivation::bringUp(*window); });
    return QGuiApplication::exec();
}
