// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include "translations/translation.h"

#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// Collects each text that no translation has: it is asked last.
class Untranslated final : public QTranslator
{
public:
    Untranslated() { QCoreApplication::installTranslator(this); }

    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*number*/) const override
    {
        // Qt's own texts are translated by Qt.
        if (*context != 'Q')
            m_texts.insert(QString::fromUtf8(context) + u": "_s + QString::fromUtf8(source));
        return {};
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] const QSet<QString> &texts() const { return m_texts; }

private:
    mutable QSet<QString> m_texts;
};

} // namespace

/// The panel's real view in languages other than English.
class PanelLanguagesTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyTextIsTranslatedAndWhole_data();
    void everyTextIsTranslatedAndWhole();
    void layoutIsTurnedOver();
    void notesKeepTheirOwnDirection();

private:
    void speak(const QString &language);
    void visitAll(const std::function<void()> &look);
    [[nodiscard]] QByteArray cutOff() const;
    [[nodiscard]] double leftOf(const QQuickItem *item) const { return item->mapToScene({}).x(); }

    // Installed before the translation, so that it is asked after it.
    std::unique_ptr<Untranslated> m_untranslated;
    std::unique_ptr<Translation> m_translation;
};

void PanelLanguagesTest::everyTextIsTranslatedAndWhole_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << u"de"_s;
    QTest::newRow("Hebrew") << u"he"_s;
}

void PanelLanguagesTest::speak(const QString &language)
{
    // The texts of the lists exist from the start.
    m_fixture.reset();
    m_untranslated = std::make_unique<Untranslated>();
    m_translation = std::make_unique<Translation>(QStringList(language));
    QGuiApplication::setLayoutDirection(m_translation->language().textDirection());
    PanelTest::init();
}

void PanelLanguagesTest::cleanup()
{
    PanelTest::cleanup();
    m_translation.reset();
    m_untranslated.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
}

/// The visible texts that extend beyond the window's sides, or end in an ellipsis.
QByteArray PanelLanguagesTest::cutOff() const
{
    QByteArray texts;
    for (const QQuickItem *item :
         shownItems(window(), [](const QQuickItem &each) { return each.inherits("QQuickText"); })) {
        const QRectF place = item->mapRectToScene(item->boundingRect());
        if (place.left() < 0 || place.right() > window().width() || item->property("truncated").toBool())
            texts += item->property("text").toString().toUtf8() + '\n';
    }
    return texts;
}

/// Shows everything that the panel can show, one after the other.
void PanelLanguagesTest::visitAll(const std::function<void()> &look)
{
    using Tab = PanelModel::Tab;
    m_fixture->accessibility.setTrusted(false);
    show();
    for (const Tab tab : {Tab::Notes, Tab::Checklists, Tab::Prompts}) {
        model().setTab(tab);
        look();
    }
    addNote(u"Plan\n☐ one\n☐ two\n☐ three\n☐ four\n☑ five"_s).setPinned(true);
    addNote(u"Plain"_s);
    m_fixture->addPrompt(u"Ask"_s);
    m_fixture->addPrompt(u"Asked"_s).toggleDone();
    for (const Tab tab : {Tab::Prompts, Tab::Checklists, Tab::Notes}) {
        model().setTab(tab);
        look();
    }
    model().setSearch(u"xylophone"_s);
    look();
    model().setSearch({});
    click(*shown("PanelMenuButton").at(0));
    QTRY_VERIFY(!shown("MenuRow").isEmpty());
    look();
    press(Qt::Key_Escape);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    look();
    Q_EMIT model().menu()->guideRequested();
    look();
}

void PanelLanguagesTest::everyTextIsTranslatedAndWhole()
{
    QFETCH(QString, language);
    for (const double scale : {1.0, 1.5}) {
        speak(language);
        m_fixture->appearance.setTextFont({.family = {}, .scale = scale});
        visitAll([this] { QTRY_VERIFY2(cutOff().isEmpty(), cutOff().constData()); });
        QCOMPARE(m_untranslated->texts(), QSet<QString>());
    }
    // Proves that missing texts are noticed.
    QCoreApplication::translate("TabBar", "No such text");
    QCOMPARE(m_untranslated->texts().size(), 1);
}

void PanelLanguagesTest::layoutIsTurnedOver()
{
    speak(u"he"_s);
    addNote(u"Plain"_s);
    show();
    QVERIFY(leftOf(shown("SearchField").at(0)) > leftOf(shown("PanelMenuButton").at(0)));
    QList<QQuickItem *> tabs = shown("TabButton");
    std::ranges::sort(tabs, std::greater(), [this](const QQuickItem *tab) { return leftOf(tab); });
    QCOMPARE(tabs.size(), 3);
    QCOMPARE(tabs.at(0)->property("tab").toInt(), int(PanelModel::Tab::Notes));
    // The arrow key moves in the direction in which it points.
    tabs.at(0)->forceActiveFocus();
    press(Qt::Key_Left);
    QVERIFY(tabs.at(1)->hasActiveFocus());
    press(Qt::Key_Right);
    QVERIFY(tabs.at(0)->hasActiveFocus());
    click(*shown("PanelMenuButton").at(0));
    QTRY_VERIFY(!shown("MenuRow").isEmpty());
    QVERIFY(leftOf(shown("MenuRow").at(0)) < window().width() / 4.0);
    press(Qt::Key_Escape);
    Q_EMIT model().menu()->guideRequested();
    QList<QQuickItem *> caps = shown("KeyCap");
    const QQuickItem *topic = shown("GuideRow").at(0);
    caps.removeIf([topic](const QQuickItem *cap) { return !topic->isAncestorOf(cap); });
    std::ranges::sort(caps, {}, [this](const QQuickItem *cap) { return leftOf(cap); });
    // Keys are shown in the order in which they are pressed.
    QCOMPARE(caps.size(), 3);
    QCOMPARE(caps.at(2)->property("glyph").toString(), u"T"_s);
}

void PanelLanguagesTest::notesKeepTheirOwnDirection()
{
    for (const QString &language : {u"en"_s, u"he"_s}) {
        speak(language);
        addNote(u"רשימה\n☐ חלב"_s);
        addNote(u"List\n☐ Milk"_s);
        show();
        QTRY_COMPARE(shown("ChecklistRow").size(), 2);
        for (const bool isHebrew : {false, true}) {
            const QQuickItem *row = shown("ChecklistRow").at(isHebrew ? 1 : 0);
            const QQuickItem *box = nullptr;
            for (const QQuickItem *item : row->childItems()) {
                if (QByteArray(item->metaObject()->className()).startsWith("CheckCircle"))
                    box = item;
            }
            QVERIFY(box);
            QCOMPARE(box->x() > row->width() / 2, isHebrew);
        }
    }
}

QTEST_MAIN(PanelLanguagesTest)
#include "tst_panellanguages.moc"
