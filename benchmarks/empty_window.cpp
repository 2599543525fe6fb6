// What any program with one Qt Quick window costs: the peer of the whole application. The window is as large as
// a dock's.

#include "Platform/MakePlatform.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>

int main(int argc, char** argv) {
    fendrel::prepareToolkit();
    const QGuiApplication application(argc, argv);
    QQuickView view;
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\n"
                      "Rectangle { color: 'steelblue'; Text { anchors.centerIn: parent; text: 'Empty' } }",
                      {});
    view.setTitle(QStringLiteral("Empty"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setContent({}, &component, component.create());
    view.resize(1920, 150);
    view.show();
    return QGuiApplication::exec();
}
