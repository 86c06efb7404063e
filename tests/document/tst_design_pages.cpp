#include "design_fixture.h"
#include "design_pages.h"
#include "jk_shi_tu.h"
#include "message_box.h"
#include "open_dispatch.h"
#include "png_bytes.h"
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
using Open = ProjectCommands::OpenOutcome;
using Save = ProjectCommands::SaveOutcome;

static const QString kEngraving = QStringLiteral("设备雕刻中,暂时停止使用!");

// The page tabs and the project commands: save and open with their refusals,
// the open dispatch by extension, drops, and pages made current or created by name.
class TestDesignPages : public QObject
{
    Q_OBJECT

    QStringList m_messages;
    int m_answer = 1;
    QTemporaryDir m_dir;

    QString writeFile(const QString &name, QSize size = QSize(40, 20))
    {
        const QString file = m_dir.filePath(name);
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(90, 120, 150));
        image.save(file);
        return file;
    }
    static auto asker(QString answer, QStringList *asked = nullptr)
    {
        return [=](QWidget *, const QString &caption, const QString &dir, const QString &filter) {
            if (asked)
                *asked << caption << dir << filter;
            return answer;
        };
    }
    QString saveOneItem(const QString &name, int items = 1)
    {
        const QString file = m_dir.filePath(name);
        DesignPages pages;
        for (int i = 0; i < items; ++i)
            pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(i)});
        ProjectCommands commands(&pages, nullptr);
        return commands.saveProjectTo(file).ok ? file : QString();
    }

private slots:
    void init()
    {
        lumitra::resetProgramState();
        m_messages.clear();
        m_answer = 1;
        lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
            m_messages.append(r.message);
            return m_answer;
        });
    }
    void cleanup()
    {
        lumitra::set_message_handler({});
        OpenDispatch::instance().unregisterImporter(QStringLiteral("svg"));
    }

    void addRenameClose()
    {
        DesignPages pages;
        QCOMPARE(pages.count(), 1);
        QCOMPARE(pages.pageName(0), QStringLiteral("页面1"));
        QCOMPARE(pages.currentView()->scene(), pages.currentScene());
        QCOMPARE(pages.currentUndoStack(), pages.currentScene()->undoStack());
        QSignalSpy changed(&pages, &DesignPages::currentPageChanged);
        QCOMPARE(pages.addPage(), 1);
        QCOMPARE(pages.pageName(1), QStringLiteral("页面2"));
        QCOMPARE(pages.currentIndex(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(pages.addPage(QStringLiteral("R&D")), 2);
        QCOMPARE(pages.tabs()->tabText(2), QStringLiteral("R&&D"));

        QVERIFY(pages.renamePage(0, QStringLiteral("  front ")));
        QCOMPARE(pages.pageName(0), QStringLiteral("front"));
        QVERIFY(!pages.renamePage(1, QStringLiteral("front")));
        QVERIFY(!pages.renamePage(1, QStringLiteral("   ")));
        QVERIFY(pages.renamePage(1, QStringLiteral("页面2"))); // its own name again

        // Shown by name, or created when no page has it.
        QCOMPARE(pages.showPage(QStringLiteral("front")), 0);
        QCOMPARE(pages.currentIndex(), 0);
        QCOMPARE(pages.showPage(QStringLiteral("c")), 3);
        QCOMPARE(pages.currentIndex(), 3);
        QVERIFY(pages.closePage(3));

        QSignalSpy gone(pages.scene(2), &QObject::destroyed);
        QVERIFY(pages.closePage(2));
        QCOMPARE(gone.count(), 1);
        QCOMPARE(pages.undoGroup()->stacks().size(), 2);
        QVERIFY(pages.closePage(0));
        QVERIFY(!pages.closePage(0)); // the last page stays
        QCOMPARE(pages.pageName(0), QStringLiteral("页面2"));
        QCOMPARE(pages.addPage(), 1);
        QCOMPARE(pages.pageName(1), QStringLiteral("页面3")); // unused name
    }

    void closingAsksWhenThePageHasItems_data()
    {
        QTest::addColumn<bool>("withItems");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::newRow("empty page closes at once") << false << 0 << true;
        QTest::newRow("confirmed") << true << 1 << true;
        QTest::newRow("cancelled") << true << 0 << false;
    }
    void closingAsksWhenThePageHasItems()
    {
        QFETCH(bool, withItems);
        QFETCH(int, answer);
        QFETCH(bool, closed);
        DesignPages pages;
        pages.addPage();
        if (withItems)
            pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
        programState().unsaved = false;
        m_answer = answer;
        emit pages.tabs()->tabCloseRequested(1);
        QCOMPARE(pages.count(), closed ? 1 : 2);
        QCOMPARE(m_messages.size(), withItems ? 1 : 0);
        QCOMPARE(programState().unsaved, withItems && closed);
    }

    void undoFollowsTheCurrentPage()
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

    void saveRefusals_data()
    {
        QTest::addColumn<bool>("running");
        QTest::addColumn<bool>("withItems");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("outcome");
        QTest::newRow("engraving") << true << true << kEngraving << int(Save::RefusedEngraving);
        QTest::newRow("engraving and empty")
            << true << false << kEngraving << int(Save::RefusedEngraving);
        QTest::newRow("empty") << false << false << "没有数据，禁止保存!"
                               << int(Save::RefusedNoData);
    }
    void saveRefusals()
    {
        QFETCH(bool, running);
        QFETCH(bool, withItems);
        QFETCH(QString, message);
        QFETCH(int, outcome);
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        QStringList asked;
        commands.setSavePathAsker(asker(m_dir.filePath(QStringLiteral("never.lumitra")), &asked));
        if (withItems)
            pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
        programState().running = running;
        QCOMPARE(int(commands.save_project()), outcome);
        QCOMPARE(m_messages, QStringList{message});
        QVERIFY(asked.isEmpty());
        QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("never.lumitra"))));
    }

    void saveAsksForTheFile()
    {
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(0)});
        QVERIFY(programState().unsaved);
        // Cancelled: nothing changes and nothing is said. Failed: nothing
        // changes, and the user hears why.
        commands.setSavePathAsker(asker(QString()));
        QCOMPARE(commands.save_project(), Save::Cancelled);
        QVERIFY(m_messages.isEmpty());
        commands.setSavePathAsker(
            asker(m_dir.filePath(QStringLiteral("no/such/folder/x.lumitra"))));
        QCOMPARE(commands.save_project(), Save::Failed);
        QVERIFY(programState().unsaved);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QStringLiteral("x.lumitra")));
        QVERIFY(commands.currentPath().isEmpty());
        m_messages.clear();

        QStringList asked;
        commands.setSavePathAsker(asker(m_dir.filePath(QStringLiteral("plain")), &asked));
        QCOMPARE(commands.save_project(), Save::Saved);
        QCOMPARE(asked,
                 (QStringList{QStringLiteral("Save File"),
                              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                              QStringLiteral("Files (*.lumitra)")}));
        QVERIFY(QFile::exists(m_dir.filePath(QStringLiteral("plain.lumitra"))));
        QVERIFY(!programState().unsaved);
        QVERIFY(m_messages.isEmpty());
    }

    void projectRoundTripThroughPages()
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
        QCOMPARE(commands.open_file(file), Open::Opened);
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

    void openingIntoADesignKeepsItUnsaved()
    {
        const QString file = saveOneItem(QStringLiteral("one.lumitra"));
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        pages.currentScene()->addItemsUndoable({new Jk_tu_yuan(2)});
        programState().unsaved = false;
        QCOMPARE(commands.open_file(file), Open::Opened);
        QVERIFY(programState().unsaved);
        // The stored page name is the name of the page already there: it is reused.
        QCOMPARE(pages.count(), 1);
        QCOMPARE(pages.scene(0)->designItemCount(), 2);
    }

    void damagedProjectKeepsWholeRecords()
    {
        const QString file = saveOneItem(QStringLiteral("cut.lumitra"), 3);
        QFile f(file);
        QVERIFY(f.resize(f.size() - 60)); // into the last item record
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        QCOMPARE(commands.open_file(file), Open::Damaged);
        QCOMPARE(pages.totalItemCount(), 2);
        // The user is told that part of the file could not be read, and the
        // design counts as unsaved: what was lost is not on disk either.
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.first().contains(QStringLiteral("cut.lumitra")));
        QVERIFY(programState().unsaved);
        QVERIFY(commands.currentPath().isEmpty());
    }

    void openRefusedWhileEngraving()
    {
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        QStringList asked;
        commands.setOpenPathAsker(asker(QString(), &asked));
        programState().running = true;
        QCOMPARE(commands.open_project(), Open::Refused);
        QCOMPARE(commands.open_file(writeFile(QStringLiteral("x.png"))), Open::Refused);
        QVERIFY(asked.isEmpty());
        QCOMPARE(m_messages, (QStringList{kEngraving, kEngraving}));
        QCOMPARE(pages.totalItemCount(), 0);
    }

    void kindByExtension_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("kind");
        QTest::newRow("png upper case") << "/a/B.PNG" << int(OpenKind::Import);
        QTest::newRow("bmp") << "x.bmp" << int(OpenKind::Import);
        QTest::newRow("jpg") << "x.jpg" << int(OpenKind::Import);
        QTest::newRow("jpeg") << "x.JPeg" << int(OpenKind::Import);
        QTest::newRow("project") << "/p/design.LUMITRA" << int(OpenKind::Project);
        QTest::newRow("svg before registration") << "a.svg" << int(OpenKind::Unsupported);
        QTest::newRow("text") << "notes.txt" << int(OpenKind::Unsupported);
        QTest::newRow("no extension") << "/tmp/png" << int(OpenKind::Unsupported);
        QTest::newRow("png in the folder name") << "/x.png/readme" << int(OpenKind::Unsupported);
    }
    void kindByExtension()
    {
        QFETCH(QString, path);
        QFETCH(int, kind);
        QCOMPARE(int(OpenDispatch::instance().kindOf(path)), kind);
        QCOMPARE(isOpenableFile(path), kind != int(OpenKind::Unsupported));
    }

    void bitmapFormatsBecomeItems_data()
    {
        QTest::addColumn<QString>("format");
        for (const char *format : {"png", "bmp", "jpg", "jpeg"})
            QTest::newRow(format) << QString::fromLatin1(format);
    }
    void bitmapFormatsBecomeItems()
    {
        QFETCH(QString, format);
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        const QString file = writeFile(QStringLiteral("picture.") + format, QSize(100, 50));
        programState().currentLayer = 6;
        QCOMPARE(commands.open_file(file), Open::Opened);
        QVERIFY(m_messages.isEmpty());
        const QList<Jk_tu_yuan *> items = pages.currentScene()->designItems();
        QCOMPARE(items.size(), 1);
        const Jk_tu_yuan *item = items.first();
        QVERIFY(item->is_bitmap);
        QCOMPARE(item->layer_id, 6);
        QVERIFY(qFuzzyCompare(item->path.boundingRect().width(), 25.4));
        QVERIFY(qFuzzyCompare(item->path.boundingRect().height(), 12.7));
        const QRgb px = item->source_image.pixel(10, 10);
        QCOMPARE(qRed(px), qGreen(px)); // the grey step ran
        QVERIFY(qAbs(qRed(px) - 120) <= 3);
        QVERIFY(item->isSelected());
        pages.currentUndoStack()->undo();
        QCOMPARE(pages.totalItemCount(), 0);
    }

    void badFilesGiveNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("message");
        QTest::addColumn<int>("outcome");
        QTest::newRow("not an image")
            << "broken.png" << QByteArray("this is not an image") << true << int(Open::Failed);
        QTest::newRow("missing image")
            << "missing.png" << QByteArray() << true << int(Open::Failed);
        QTest::newRow("oversized image")
            << "huge.png" << pngbytes::lyingPng(30000, 30000) << true << int(Open::Failed);
        QTest::newRow("missing project")
            << "missing.lumitra" << QByteArray() << false << int(Open::Failed);
        QTest::newRow("garbage project")
            << "garbage.lumitra" << QByteArray(300, 'x') << false << int(Open::Failed);
        QTest::newRow("text file")
            << "notes.txt" << QByteArray("x") << false << int(Open::Unsupported);
    }
    void badFilesGiveNothing()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(bool, message);
        QFETCH(int, outcome);
        const QString file = m_dir.filePath(name);
        if (!content.isEmpty()) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(content);
        }
        if (name.endsWith(QLatin1String(".png"))) {
            QString said;
            QVERIFY(importBitmapFile(file, &said).isEmpty());
            QCOMPARE(!said.isEmpty(), message);
        }
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        m_messages.clear();
        QCOMPARE(int(commands.open_file(file)), outcome);
        QCOMPARE(pages.totalItemCount(), 0);
        QCOMPARE(pages.currentUndoStack()->count(), 0);
        // Every file that gives nothing says so, once.
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.first().contains(name) || message, qPrintable(m_messages.first()));
    }

    void registeredImporterIsUsed()
    {
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        QStringList asked;
        for (const char *name : {"d.Svg", "a.svg"}) {
            QFile f(m_dir.filePath(QString::fromLatin1(name)));
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
        commands.setOpenPathAsker(asker(m_dir.filePath(QStringLiteral("d.Svg")), &asked));
        OpenDispatch &dispatch = OpenDispatch::instance();
        QStringList seen;
        dispatch.registerImporter(QStringLiteral("SVG"), [&seen](const QString &path, QString *) {
            seen.append(path);
            QPainterPath p;
            p.addEllipse(0, 0, 10, 10);
            auto *item = new Jk_tu_yuan(p, 0);
            item->setTransform(QTransform::fromScale(1, -1));
            return QList<Jk_tu_yuan *>{item, new Jk_tu_yuan(p, 0)};
        });
        QVERIFY(dispatch.extensions().contains(QStringLiteral("svg")));
        QVERIFY(dispatch.extensions().contains(QStringLiteral("lumitra")));
        QCOMPARE(commands.open_project(), Open::Opened);
        QCOMPARE(asked.at(0), QStringLiteral("Open File"));
        QCOMPARE(asked.at(2),
                 QStringLiteral("Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))"));
        QCOMPARE(seen, QStringList{m_dir.filePath(QStringLiteral("d.Svg"))});
        QCOMPARE(pages.currentScene()->designItemCount(), 2);
        QCOMPARE(pages.currentUndoStack()->count(), 1);
        int flipped = 0;
        for (const Jk_tu_yuan *item : pages.currentScene()->designItems())
            flipped += item->transform() == QTransform::fromScale(1, -1) ? 1 : 0;
        QCOMPARE(flipped, 1);
        pages.currentUndoStack()->undo();
        QCOMPARE(pages.currentScene()->designItemCount(), 0);

        // The importer's message is shown when it gives nothing.
        dispatch.registerImporter(QStringLiteral("svg"), [](const QString &, QString *message) {
            *message = QStringLiteral("too big");
            return QList<Jk_tu_yuan *>();
        });
        QCOMPARE(commands.open_file(m_dir.filePath(QStringLiteral("a.svg"))), Open::Failed);
        QCOMPARE(m_messages, QStringList{QStringLiteral("too big")});
        // A notice that comes with items is shown once they are in the design.
        m_messages.clear();
        dispatch.registerImporter(QStringLiteral("svg"), [](const QString &, QString *message) {
            *message = QStringLiteral("2 texts left out");
            QPainterPath p;
            p.addRect(0, 0, 5, 5);
            return QList<Jk_tu_yuan *>{new Jk_tu_yuan(p, 0)};
        });
        QCOMPARE(commands.open_file(m_dir.filePath(QStringLiteral("a.svg"))), Open::Opened);
        QCOMPARE(m_messages, QStringList{QStringLiteral("2 texts left out")});
        QCOMPARE(pages.currentScene()->designItemCount(), 1);

        dispatch.unregisterImporter(QStringLiteral("svg"));
        QCOMPARE(dispatch.kindOf(QStringLiteral("drawing.svg")), OpenKind::Unsupported);
        QVERIFY(!dispatch.importerFor(QStringLiteral("drawing.svg")));
        dispatch.registerImporter(QStringLiteral("svg"), FileImporter()); // an empty importer
        QCOMPARE(dispatch.kindOf(QStringLiteral("drawing.svg")), OpenKind::Unsupported);
    }

    void droppedFilesAreOpened()
    {
        DesignPages pages;
        ProjectCommands commands(&pages, nullptr);
        // Wired as the window wires it.
        connect(&pages, &DesignPages::filesDropped, &commands, &ProjectCommands::open_files);
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(writeFile(QStringLiteral("a.png"))),
                      QUrl::fromLocalFile(writeFile(QStringLiteral("b.bmp"))),
                      QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("c.txt")))});
        QWidget *canvas = pages.currentView()->viewport();
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(canvas, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas, &drop);
        QCOMPARE(pages.currentScene()->designItemCount(), 2);
        QCOMPARE(pages.currentUndoStack()->count(), 2);
    }

    // Dropped imports land centred where they were dropped; opened ones centre on the work
    // area as before.
    void droppedImportsLandWhereDropped()
    {
        DesignPages pages;
        pages.resize(800, 600);
        ProjectCommands commands(&pages, nullptr);
        connect(&pages, &DesignPages::filesDroppedAt, &commands, &ProjectCommands::open_files_at);
        const QString png = writeFile(QStringLiteral("drop.png"));
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(png)});
        Jk_shi_tu *view = pages.currentView();
        const QPoint at(120, 90);
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &drop);
        QCOMPARE(pages.currentScene()->designItemCount(), 1);
        const Jk_tu_yuan *item = pages.currentScene()->designItems().first();
        const QPointF centre = item->sceneTransform().map(item->path).boundingRect().center();
        const QPointF expected = view->mapToScene(at);
        QVERIFY2(QLineF(centre, expected).length() < 1e-6,
                 qPrintable(QStringLiteral("%1,%2").arg(centre.x()).arg(centre.y())));

        QCOMPARE(commands.open_file(png), Open::Opened);
        const Jk_tu_yuan *opened = pages.currentScene()->designItems().first() == item
                                       ? pages.currentScene()->designItems().last()
                                       : pages.currentScene()->designItems().first();
        const QPointF openedCentre =
            opened->sceneTransform().map(opened->path).boundingRect().center();
        QVERIFY(QLineF(openedCentre, expected).length() > 1);
    }
};

QTEST_MAIN(TestDesignPages)
#include "tst_design_pages.moc"
