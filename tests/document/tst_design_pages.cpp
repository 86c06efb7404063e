#include "design_fixture.h"
#include "design_pages.h"
#include "jk_shi_tu.h"
#include "message_box.h"
#include "open_dispatch.h"
#include "program_state.h"
#include "project_commands.h"

#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

using lumitra::programState;

// The page tabs and the project commands: save and open with their refusals,
// the open dispatch, drops, and pages made current or created by name.
class TestDesignPages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsWithOnePage();
    void addRenameClose();
    void closingAsksWhenThePageHasItems_data();
    void closingAsksWhenThePageHasItems();
    void showPageCreatesByName();
    void undoFollowsTheCurrentPage();
    void saveRefusals_data();
    void saveRefusals();
    void saveAsksForTheFile();
    void cancelledOrFailedSaveChangesNothing();
    void projectRoundTripThroughPages();
    void openingIntoADesignKeepsItUnsaved();
    void openRefusedWhileEngraving();
    void openDispatchesByExtension();
    void importerMessagesAreShown();
    void damagedProjectKeepsWholeRecords();
    void droppedFilesAreOpened();

private:
    QStringList m_messages;
    int m_answer = 1;
    QTemporaryDir m_dir;
    QString writePng(const QString &name, QSize size = QSize(40, 20));
};

void TestDesignPages::init()
{
    lumitra::resetProgramState();
    m_messages.clear();
    m_answer = 1;
    lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
        m_messages.append(r.message);
        return m_answer;
    });
}

void TestDesignPages::cleanup()
{
    lumitra::set_message_handler({});
    OpenDispatch::instance().unregisterImporter(QStringLiteral("svg"));
}

QString TestDesignPages::writePng(const QString &name, QSize size)
{
    const QString file = m_dir.filePath(name);
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    image.save(file);
    return file;
}

void TestDesignPages::startsWithOnePage()
{
    DesignPages pages;
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pages.currentIndex(), 0);
    QCOMPARE(pages.pageName(0), QStringLiteral("页面1"));
    QVERIFY(pages.currentScene());
    QCOMPARE(pages.currentView()->scene(), pages.currentScene());
    QCOMPARE(pages.currentUndoStack(), pages.currentScene()->undoStack());
    QVERIFY(LayerList::instance().isEmpty());
}

void TestDesignPages::addRenameClose()
{
    DesignPages pages;
    QSignalSpy changed(&pages, &DesignPages::currentPageChanged);
    QCOMPARE(pages.addPage(), 1);
    QCOMPARE(pages.pageName(1), QStringLiteral("页面2"));
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(pages.addPage(QStringLiteral("R&D")), 2);
    QCOMPARE(pages.pageName(2), QStringLiteral("R&D"));
    QCOMPARE(pages.tabs()->tabText(2), QStringLiteral("R&&D"));

    QVERIFY(pages.renamePage(0, QStringLiteral("  front ")));
    QCOMPARE(pages.pageName(0), QStringLiteral("front"));
    QVERIFY(!pages.renamePage(1, QStringLiteral("front")));
    QVERIFY(!pages.renamePage(1, QStringLiteral("   ")));
    QVERIFY(pages.renamePage(1, QStringLiteral("页面2"))); // its own name again
    QCOMPARE(pages.indexOfPage(QStringLiteral("R&D")), 2);

    Jk_chang_jing *closing = pages.scene(2);
    QSignalSpy gone(closing, &QObject::destroyed);
    QVERIFY(pages.closePage(2));
    QCOMPARE(gone.count(), 1);
    QCOMPARE(pages.count(), 2);
    QCOMPARE(pages.undoGroup()->stacks().size(), 2);
    QVERIFY(pages.closePage(0));
    QVERIFY(!pages.closePage(0)); // the last page stays
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pages.pageName(0), QStringLiteral("页面2"));
    QCOMPARE(pages.addPage(), 1);
    QCOMPARE(pages.pageName(1), QStringLiteral("页面3")); // unused name
}

void TestDesignPages::closingAsksWhenThePageHasItems_data()
{
    QTest::addColumn<bool>("withItems");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("questions");
    QTest::newRow("empty page closes at once") << false << 0 << true << 0;
    QTest::newRow("confirmed") << true << 1 << true << 1;
    QTest::newRow("cancelled") << true << 0 << false << 1;
}

void TestDesignPages::closingAsksWhenThePageHasItems()
{
    QFETCH(bool, withItems);
    QFETCH(int, answer);
    QFETCH(bool, closed);
    QFETCH(int, questions);
    DesignPages pages;
    pages.addPage();
    if (withItems)
        pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
    programState().unsaved = false;
    m_answer = answer;
    emit pages.tabs()->tabCloseRequested(1);
    QCOMPARE(pages.count(), closed ? 1 : 2);
    QCOMPARE(m_messages.size(), questions);
    QCOMPARE(programState().unsaved, withItems && closed);
}

void TestDesignPages::showPageCreatesByName()
{
    DesignPages pages;
    pages.addPage(QStringLiteral("a"));
    pages.addPage(QStringLiteral("b"));
    QCOMPARE(pages.showPage(QStringLiteral("a")), 1);
    QCOMPARE(pages.currentIndex(), 1);
    QCOMPARE(pages.showPage(QStringLiteral("c")), 3);
    QCOMPARE(pages.currentIndex(), 3);
    QCOMPARE(pages.count(), 4);
}

void TestDesignPages::undoFollowsTheCurrentPage()
{
    DesignPages pages;
    pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
    pages.addPage();
    pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(1), new Jk_tu_yuan(2)});
    QCOMPARE(pages.undoGroup()->activeStack(), pages.currentUndoStack());
    pages.undoGroup()->undo();
    QCOMPARE(pages.scene(1)->designItemCount(), 0);
    QCOMPARE(pages.scene(0)->designItemCount(), 1);
    pages.setCurrentIndex(0);
    QCOMPARE(pages.undoGroup()->activeStack(), pages.scene(0)->undoStack());
    pages.undoGroup()->undo();
    QCOMPARE(pages.scene(0)->designItemCount(), 0);
}

void TestDesignPages::saveRefusals_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("withItems");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("outcome");
    QTest::newRow("engraving") << true << true << "设备雕刻中,暂时停止使用!"
                               << int(ProjectCommands::SaveOutcome::RefusedEngraving);
    QTest::newRow("empty") << false << false << "没有数据，禁止保存!"
                           << int(ProjectCommands::SaveOutcome::RefusedNoData);
}

void TestDesignPages::saveRefusals()
{
    QFETCH(bool, running);
    QFETCH(bool, withItems);
    QFETCH(QString, message);
    QFETCH(int, outcome);
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    int asked = 0;
    commands.setSavePathAsker([&](QWidget *, const QString &, const QString &, const QString &) {
        ++asked;
        return m_dir.filePath(QStringLiteral("never.lumitra"));
    });
    if (withItems)
        pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
    programState().running = running;
    QCOMPARE(int(commands.save_project()), outcome);
    QCOMPARE(m_messages, QStringList{message});
    QCOMPARE(asked, 0);
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("never.lumitra"))));
}

void TestDesignPages::saveAsksForTheFile()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    QStringList asked;
    commands.setSavePathAsker(
        [&](QWidget *, const QString &caption, const QString &dir, const QString &filter) {
            asked << caption << dir << filter;
            return m_dir.filePath(QStringLiteral("plain"));
        });
    pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
    QVERIFY(programState().unsaved);
    QCOMPARE(commands.save_project(), ProjectCommands::SaveOutcome::Saved);
    QCOMPARE(asked,
             (QStringList{QStringLiteral("Save File"),
                          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                          QStringLiteral("Files (*.lumitra)")}));
    QVERIFY(QFile::exists(m_dir.filePath(QStringLiteral("plain.lumitra"))));
    QVERIFY(!programState().unsaved);
    QVERIFY(m_messages.isEmpty());
}

void TestDesignPages::cancelledOrFailedSaveChangesNothing()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
    commands.setSavePathAsker(
        [](QWidget *, const QString &, const QString &, const QString &) { return QString(); });
    QCOMPARE(commands.save_project(), ProjectCommands::SaveOutcome::Cancelled);
    QVERIFY(programState().unsaved);
    commands.setSavePathAsker([&](QWidget *, const QString &, const QString &, const QString &) {
        return m_dir.filePath(QStringLiteral("no/such/folder/x.lumitra"));
    });
    QCOMPARE(commands.save_project(), ProjectCommands::SaveOutcome::Failed);
    QVERIFY(programState().unsaved);
    QVERIFY(m_messages.isEmpty()); // given up without a message
}

void TestDesignPages::projectRoundTripThroughPages()
{
    const QString file = m_dir.filePath(QStringLiteral("two.lumitra"));
    {
        DesignPages pages;
        pages.renamePage(0, QStringLiteral("front"));
        fixture::addDesign(*pages.currentScene());
        LayerList::instance().find(2, false)->gonglv = 33;
        pages.addPage(QStringLiteral("back"));
        auto *item = new Jk_tu_yuan(1);
        item->layer_id = 9;
        pages.currentScene()->addItemsUndoable({item});
        LayerList::instance().find(9, false)->sudu = 999;
        ProjectCommands commands(&pages, nullptr);
        QVERIFY(commands.saveProjectTo(file).ok);
    }
    QVERIFY(LayerList::instance().isEmpty());
    programState().unsaved = false;
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    QCOMPARE(commands.open_file(file), ProjectCommands::OpenOutcome::Opened);
    QCOMPARE(pages.count(), 2); // the empty first page took the first name
    QCOMPARE(pages.pageName(0), QStringLiteral("front"));
    QCOMPARE(pages.pageName(1), QStringLiteral("back"));
    QCOMPARE(pages.scene(0)->designItemCount(), 4);
    QCOMPARE(pages.scene(1)->designItemCount(), 1);
    QCOMPARE(pages.currentIndex(), 1); // the last page read is current
    QCOMPARE(LayerList::instance().count(), 1);
    QCOMPARE(LayerList::instance().find(9, false)->sudu, 999);
    pages.setCurrentIndex(0);
    QCOMPARE(LayerList::instance().count(), 4);
    QCOMPARE(LayerList::instance().find(2, false)->gonglv, 33);
    QVERIFY(!programState().unsaved); // opened into an empty design
    // The loaded items came through the undoable add.
    pages.currentUndoStack()->undo();
    QCOMPARE(pages.scene(0)->designItemCount(), 0);
}

void TestDesignPages::openingIntoADesignKeepsItUnsaved()
{
    const QString file = m_dir.filePath(QStringLiteral("one.lumitra"));
    {
        DesignPages pages;
        pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
        ProjectCommands commands(&pages, nullptr);
        QVERIFY(commands.saveProjectTo(file).ok);
    }
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(2)});
    programState().unsaved = false;
    QCOMPARE(commands.open_file(file), ProjectCommands::OpenOutcome::Opened);
    QVERIFY(programState().unsaved);
    // The stored page name is the name of the page already there: it is reused.
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pages.scene(0)->designItemCount(), 2);
    QCOMPARE(pages.totalItemCount(), 2);
}

void TestDesignPages::openRefusedWhileEngraving()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    int asked = 0;
    commands.setOpenPathAsker([&](QWidget *, const QString &, const QString &, const QString &) {
        ++asked;
        return QString();
    });
    programState().running = true;
    QCOMPARE(commands.open_project(), ProjectCommands::OpenOutcome::Refused);
    QCOMPARE(commands.open_file(writePng(QStringLiteral("x.png"))),
             ProjectCommands::OpenOutcome::Refused);
    QCOMPARE(asked, 0);
    QCOMPARE(m_messages, (QStringList{QStringLiteral("设备雕刻中,暂时停止使用!"),
                                      QStringLiteral("设备雕刻中,暂时停止使用!")}));
    QCOMPARE(pages.totalItemCount(), 0);
}

void TestDesignPages::openDispatchesByExtension()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    QStringList asked;
    const QString png = writePng(QStringLiteral("photo.PNG"), QSize(100, 50));
    commands.setOpenPathAsker(
        [&](QWidget *, const QString &caption, const QString &dir, const QString &filter) {
            asked << caption << dir << filter;
            return png;
        });
    QCOMPARE(commands.open_project(), ProjectCommands::OpenOutcome::Opened);
    QCOMPARE(asked.at(0), QStringLiteral("Open File"));
    QCOMPARE(asked.at(2),
             QStringLiteral("Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))"));
    const QList<Jk_tu_yuan *> items = pages.currentScene()->designItems();
    QCOMPARE(items.size(), 1);
    QVERIFY(items.first()->is_bitmap);
    QVERIFY(qFuzzyCompare(items.first()->path.boundingRect().width(), 25.4));
    pages.currentUndoStack()->undo();
    QCOMPARE(pages.totalItemCount(), 0);

    QCOMPARE(commands.open_file(m_dir.filePath(QStringLiteral("notes.txt"))),
             ProjectCommands::OpenOutcome::Unsupported);
    QCOMPARE(commands.open_file(m_dir.filePath(QStringLiteral("missing.lumitra"))),
             ProjectCommands::OpenOutcome::Failed);
    QVERIFY(m_messages.isEmpty());

    // A vector importer registered by the application goes through the same road.
    OpenDispatch::instance().registerImporter(QStringLiteral("svg"),
                                              [](const QString &, QString *) {
                                                  QPainterPath p;
                                                  p.addEllipse(0, 0, 10, 10);
                                                  auto *item = new Jk_tu_yuan(p, 0);
                                                  item->setTransform(QTransform::fromScale(1, -1));
                                                  return QList<Jk_tu_yuan *>{item};
                                              });
    QCOMPARE(commands.open_file(m_dir.filePath(QStringLiteral("d.svg"))),
             ProjectCommands::OpenOutcome::Opened);
    QCOMPARE(pages.currentScene()->designItemCount(), 1);
    QCOMPARE(pages.currentScene()->designItems().first()->transform(),
             QTransform::fromScale(1, -1));
    pages.currentUndoStack()->undo();
    QCOMPARE(pages.currentScene()->designItemCount(), 0);
}

void TestDesignPages::importerMessagesAreShown()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    OpenDispatch::instance().registerImporter(QStringLiteral("svg"),
                                              [](const QString &, QString *message) {
                                                  *message = QStringLiteral("too big");
                                                  return QList<Jk_tu_yuan *>();
                                              });
    QCOMPARE(commands.open_file(QStringLiteral("/x/a.svg")), ProjectCommands::OpenOutcome::Failed);
    QCOMPARE(m_messages, QStringList{QStringLiteral("too big")});
    QCOMPARE(pages.currentUndoStack()->count(), 0);
}

void TestDesignPages::damagedProjectKeepsWholeRecords()
{
    const QString file = m_dir.filePath(QStringLiteral("cut.lumitra"));
    {
        DesignPages pages;
        for (int i = 0; i < 3; ++i)
            pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(i)});
        ProjectCommands commands(&pages, nullptr);
        QVERIFY(commands.saveProjectTo(file).ok);
    }
    QFile f(file);
    QVERIFY(f.open(QIODevice::ReadWrite));
    const QByteArray bytes = f.readAll();
    f.resize(bytes.size() - 60); // into the last item record
    f.close();
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    QCOMPARE(commands.open_file(file), ProjectCommands::OpenOutcome::Damaged);
    QCOMPARE(pages.totalItemCount(), 2);
    QVERIFY(m_messages.isEmpty());
}

void TestDesignPages::droppedFilesAreOpened()
{
    DesignPages pages;
    ProjectCommands commands(&pages, nullptr);
    // Wired as the window wires it.
    connect(&pages, &DesignPages::filesDropped, &commands, &ProjectCommands::open_files);
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(writePng(QStringLiteral("a.png"))),
                  QUrl::fromLocalFile(writePng(QStringLiteral("b.bmp"))),
                  QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("c.txt")))});
    QWidget *canvas = pages.currentView()->viewport();
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &drop);
    QCOMPARE(pages.currentScene()->designItemCount(), 2);
    QCOMPARE(pages.currentUndoStack()->count(), 2);
}

QTEST_MAIN(TestDesignPages)
#include "tst_design_pages.moc"
