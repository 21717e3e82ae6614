// SPDX-License-Identifier: MIT
#include "sampleeditor.h"

#include "editor/noteeditorcontroller.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace vesk::sampleeditor {

namespace {

const auto kView = uR"(
import QtQuick
import Vesk.Components
import Vesk.Editor

Rectangle {
    color: Theme.background

    NoteEditor {
        objectName: "editor"
        anchors.fill: parent
        anchors.margins: 22
        fontSize: 15
        firstLineIsTitle: true
        titleBoost: 7
        titleWeight: Font.Bold
        autofocus: true
    }
}
)"_s;

const auto kNote =
    u"Weekend in the hills\n"
    "Two nights, **four people**, and the dog. The hut has no shop nearby, so everything to eat "
    "comes along in the car.\n"
    "# To pack\n"
    "☑ Sleeping bags\n"
    "☑ Rain jackets for all of us, since the forecast changes from one hour to the next\n"
    "☐ Head torches and **spare batteries**\n"
    "☐ First-aid kit\n"
    "# To remember\n"
    "• The key is with the neighbour\n"
    "• Road closed from 18:00\n"
    "Café at the pass: open until five 😀"_s;

} // namespace

std::unique_ptr<QQuickWindow> show(QQmlEngine &engine)
{
    const NoteEditorController controller;
    QQmlComponent component(&engine);
    component.setData(kView.toUtf8(), QUrl());
    auto *view = qobject_cast<QQuickItem *>(component.create());
    if (!view)
        qFatal("%s", qUtf8Printable(component.errorString()));
    auto window = std::make_unique<QQuickWindow>();
    window->resize(460, 480);
    view->setParent(window.get());
    view->setParentItem(window->contentItem());
    view->setSize(window->size());
    view->findChild<QQuickItem *>(u"editor"_s)->setProperty("text", kNote);
    window->show();
    return window;
}

} // namespace vesk::sampleeditor
