// SPDX-License-Identifier: Apache-2.0

#include "Program.h"

#include "AppearancePortal.h"
#include "CommandLine.h"
#include "DrawingDelay.h"
#include "ExportKept.h"
#include "FirstSize.h"
#include "FontConfiguration.h"
#include "FontFamilies.h"
#include "FontPages.h"
#include "GarbageBetweenFrames.h"
#include "LetterPictures.h"
#include "LetterWidths.h"
#include "NetworkSiteClient.h"
#include "ProgramParts.h"
#include "SchemePalette.h"
#include "ScreenReaderStatus.h"
#include "StemDarkening.h"
#include "TerminationSignals.h"
#include "TextLanguage.h"
#include "TypeScale.h"
#include "WindowActivation.h"

#include <QDateTime>
#include <QFont>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QIcon>
#include <QImageReader>
#include <QNetworkProxyFactory>
#include <QPixmap>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <memory>

namespace {

/// After which the letters of the start are read.
constexpr std::chrono::seconds startRead(1);

QStringList argumentsOf(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

int tell(const CommandLine::Answer& answer)
{
    auto* const output = answer.exitCode == EXIT_SUCCESS ? stdout : stderr;
    const bool isTold =
        std::fputs(answer.text.toLocal8Bit().constData(), output) >= 0 && std::fflush(output) == 0;
    return isTold ? answer.exitCode : EXIT_FAILURE;
}

double secondsNow()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
}

void introduce(const QString& version)
{
    QGuiApplication::setApplicationName(u"corvanite-information"_qs);
    QGuiApplication::setApplicationVersion(version);
    QGuiApplication::setDesktopFileName(u"example.corvanite.information"_qs);
}

void chooseIcon()
{
    // Its format is not to be guessed, for which Qt loads every image plugin there is.
    QImageReader icon(u":/corvanite/icons/app-icon-128.png"_qs, "png");
    icon.setAutoDetectImageFormat(false);
    QGuiApplication::setWindowIcon(QPixmap::fromImage(icon.read()));
}

// Every text looks up the application's font before it takes its own: so it is of a family that is
// shown. It is never what the theme asks for, which a field would take for no font of its own.
void chooseFont()
{
    QFont font = QGuiApplication::font();
    font.setFamily(FontFamilies().sans());
    QGuiApplication::setFont(font);
}

void chooseTextRendering(double devicePixelRatio)
{
    constexpr double nativeTextBelowPixelRatio = 1.5;
    QQuickWindow::setTextRenderType(devicePixelRatio < nativeTextBelowPixelRatio
                                        ? QQuickWindow::NativeTextRendering
                                        : QQuickWindow::QtTextRendering);
}

QUrl screenFile(const QString& name)
{
    return QUrl(u"qrc:/qt/qml/CorvaniteInformation/Screens/"_qs + name);
}

} // namespace

int runProgram(int argc, char* argv[], const QString& siteOrigin, const QString& version)
{
    const auto environment = QProcessEnvironment::systemEnvironment();
    const auto request = CommandLine::request(argumentsOf(argc, argv), version);
    if (const auto* const answer = std::get_if<CommandLine::Answer>(&request)) {
        return tell(*answer);
    }
    if (const auto* const keptExport = std::get_if<CommandLine::Export>(&request)) {
        return tell(exportKept(*keptExport, environment));
    }
    // With a seed Qt 6.4 hashes short keys twenty times slower where there is AVX-512.
    QHashSeed::setDeterministicGlobalSeed();
    const auto fontConfiguration = FontConfiguration::readAhead();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // Else a screen reader that starts later finds nothing: Qt 6.4 looks for one at the start
    // alone.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    DrawingDelay::switchOff();
    const QGuiApplication application(argc, argv);
    introduce(version);

    const auto site = ProductSite::fromOrigin(siteOrigin);
    if (!site) {
        qFatal("The program was built for a site that is not secure: %s",
               qUtf8Printable(siteOrigin));
    }
    // Which way that is, is asked for at the first request, after the first frame.
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    NetworkSiteClient siteClient(*site, NetworkSiteClient::Limits());
    ProgramParts parts(
        {.environment = environment, .now = secondsNow, .site = siteClient, .version = version});
    if (parts.instance().standing() == ProgramInstance::Standing::Unanswered) {
        return tell(CommandLine::unanswered());
    }
    if (parts.instance().standing() == ProgramInstance::Standing::Later) {
        return EXIT_SUCCESS;
    }

    // Not an application engine: its file selectors would look for variants of every file.
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_qs);
    // The engine reads the screens on a thread of its own; meanwhile everything else is made ready.
    const QUrl viewFile = screenFile(u"Workbench/InformationWorkbenchView.qml"_qs);
    const QQmlComponent viewAhead(&engine, viewFile, QQmlComponent::Asynchronous);

    chooseIcon();
    chooseTextRendering(application.devicePixelRatio());
    StemDarkening::switchOff();
    TextLanguage::setChinese();
    AppearancePortal appearance(QDBusConnection::sessionBus());
    QObject::connect(&appearance, &AppearancePortal::colorSchemeChanged, [](auto colorScheme) {
        QGuiApplication::setPalette(schemePalette(colorScheme));
    });
    const ScreenReaderStatus screenReader(QDBusConnection::sessionBus());
    chooseFont();
    const TypeScale scale;
    for (const auto& font : scale.fonts()) {
        LetterWidths::readFromTable(font);
    }
    auto* const model = parts.model();
    if (const auto focused = model->focusedSignals(); !focused.isEmpty()) {
        const auto& first = focused.constFirst();
        LetterPictures::drawAhead(scale.bodyFont(), first.why + first.caveat);
    }

    QQmlComponent view(&engine, viewFile);
    const QQmlComponent firstSurface(&engine, screenFile(u"Today/TodaySurface.qml"_qs),
                                     QQmlComponent::Asynchronous);
    const QSize size = FirstSize::within(QGuiApplication::primaryScreen()->availableSize());
    const std::unique_ptr<QObject> root(
        view.createWithInitialProperties({{u"workbench"_qs, QVariant::fromValue(model)},
                                          {u"width"_qs, size.width()},
                                          {u"height"_qs, size.height()},
                                          {u"reducedMotion"_qs, appearance.reducedMotion()},
                                          {u"readAloud"_qs, screenReader.present()}}));
    auto* const window = qobject_cast<QQuickWindow*>(root.get());
    if (!window) {
        qFatal("The window cannot be made: %s", qUtf8Printable(view.errorString()));
    }
    GarbageBetweenFrames::collect(*window, engine);
    QObject::connect(&appearance, &AppearancePortal::reducedMotionChanged, window,
                     [window](bool reduced) { window->setProperty("reducedMotion", reduced); });
    QObject::connect(&screenReader, &ScreenReaderStatus::presentChanged, window,
                     [window](bool present) { window->setProperty("readAloud", present); });
    QObject::connect(
        &parts.instance(), &ProgramInstance::activationRequested, window,
        [window](const QByteArray& token) { WindowActivation::bringUp(*window, token); });
    QObject::connect(window, &QWindow::activeChanged, window, [window, &parts] {
        if (window->isActive()) {
            parts.catchUp();
        }
    });
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, [](auto state) {
        if (state != Qt::ApplicationActive) {
            FontPages::giveBack();
        }
    });
    QTimer::singleShot(startRead, &application, &FontPages::giveBack);
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::endRequested, window,
                     &QWindow::close);
    return QGuiApplication::exec();
}
