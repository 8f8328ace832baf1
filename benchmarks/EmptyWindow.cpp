// SPDX-License-Identifier: Apache-2.0

// The least that a Qt Quick program can be: one empty window, drawn by the software renderer.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char* argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine(QUrl(u"qrc:/qt/qml/EmptyWindow/EmptyWindow.qml"_qs));
    return QGuiApplication::exec();
}
