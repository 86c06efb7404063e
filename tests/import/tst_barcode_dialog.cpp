// The QR code / barcode dialog and the window's action: confirmed content
// arrives as new items that decode back to it, refused content shows zint's
// reason and adds nothing.
#include "barcode_actions.h"
#include "barcode_dialog.h"
#include "barcode_render.h"
#include "jk_tu_yuan.h"
#include "message_box.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QWidget>
#include <QtTest>

class TestBarcodeDialog : public QObject
{
    Q_OBJECT

    QStringList m_messages;
    QWidget *m_window = nullptr;

    template<typename T> static T *child(QWidget *dialog, const char *name)
    {
        T *w = dialog->findChild<T *>(QLatin1String(name));
        if (!w)
            qFatal("missing %s", name);
        return w;
    }

    // Types `data` into the dialog's content field, picks `kind`, sets the width.
    static void fill(BarcodeDialog *d, int kind, const QString &data, double width)
    {
        auto *kindBox = child<QComboBox>(d, "kind_Box");
        kindBox->setFocus();
        while (kindBox->currentIndex() < kind)
            QTest::keyClick(kindBox, Qt::Key_Down);
        while (kindBox->currentIndex() > kind)
            QTest::keyClick(kindBox, Qt::Key_Up);
        auto *edit = child<QLineEdit>(d, "data_Edit");
        edit->clear();
        QTest::keyClicks(edit, data);
        auto *spin = child<QDoubleSpinBox>(d, "width_Spin");
        spin->selectAll();
        QTest::keyClicks(spin, QString::number(width, 'f', 2));
        QTest::keyClick(spin, Qt::Key_Tab);
    }

private slots:
    void initTestCase()
    {
        qRegisterMetaType<QList<Jk_tu_yuan *>>();
        lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
            m_messages << r.message;
            return 1;
        });
        m_window = new QWidget;
    }
    void init() { m_messages.clear(); }
    void cleanupTestCase()
    {
        lumitra::set_message_handler({});
        delete m_window;
    }

    void actionOpensDialog()
    {
        BarcodeActions actions(m_window);
        QCOMPARE(actions.actions().size(), 1);
        QCOMPARE(actions.actions().first()->text(), QStringLiteral("二维码/条形码"));
        actions.actions().first()->trigger();
        auto *dialog = m_window->findChild<BarcodeDialog *>();
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QTest::mouseClick(child<QPushButton>(dialog, "close_Btn"), Qt::LeftButton);
        QVERIFY(!dialog->isVisible());
    }

    void kindSwitchesOptions_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("linear");
        QTest::addColumn<int>("quiet");
        QTest::newRow("QR") << 0 << false << 4;
        QTest::newRow("Data Matrix") << 1 << false << 1;
        QTest::newRow("Code 128") << 2 << true << 10;
        QTest::newRow("EAN-13") << 3 << true << 9;
        QTest::newRow("UPC-A") << 4 << true << 9;
    }
    void kindSwitchesOptions()
    {
        QFETCH(int, kind);
        QFETCH(bool, linear);
        QFETCH(int, quiet);
        BarcodeDialog d(m_window);
        d.show();
        fill(&d, kind, QStringLiteral("1"), 20);
        QCOMPARE(child<QDoubleSpinBox>(&d, "height_Spin")->isEnabled(), linear);
        QCOMPARE(child<QCheckBox>(&d, "text_Check")->isEnabled(), linear);
        QCOMPARE(child<QComboBox>(&d, "level_Box")->isEnabled(), kind == 0);
        QCOMPARE(child<QSpinBox>(&d, "quiet_Spin")->value(), quiet);
        QCOMPARE(int(d.settings().kind), kind);
        QCOMPARE(d.settings().quietModules, quiet);
    }

    void confirmedContentBecomesItems_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("data");
        QTest::addColumn<int>("itemCount");
        QTest::addColumn<QString>("decoded");
        QTest::newRow("QR") << 0 << QStringLiteral("Lumitra 2024") << 1
                            << QStringLiteral("Lumitra 2024");
        QTest::newRow("Code 128") << 2 << QStringLiteral("ABC-987") << 2
                                  << QStringLiteral("ABC-987");
        QTest::newRow("EAN-13") << 3 << QStringLiteral("590123412345") << 2
                                << QStringLiteral("5901234123457");
    }
    void confirmedContentBecomesItems()
    {
        QFETCH(int, kind);
        QFETCH(QString, data);
        QFETCH(int, itemCount);
        QFETCH(QString, decoded);
        BarcodeActions actions(m_window);
        QSignalSpy spy(&actions, &BarcodeActions::itemsCreated);
        BarcodeDialog *d = actions.openDialog();
        QPointer<BarcodeDialog> guard(d);
        fill(d, kind, data, 40);
        QTest::mouseClick(child<QPushButton>(d, "confirm_Btn"), Qt::LeftButton);
        QVERIFY(m_messages.isEmpty());
        QCOMPARE(spy.count(), 1);
        const auto items = spy.first().first().value<QList<Jk_tu_yuan *>>();
        QCOMPARE(items.size(), itemCount);
        QTRY_VERIFY(guard.isNull()); // closed and deleted
        for (Jk_tu_yuan *item : items)
            QVERIFY(item->isSelected());

        if (barcode_test::zbarimg().isEmpty()) {
            qDeleteAll(items);
            QSKIP("zbarimg is not installed (Debian package zbar-tools)");
        }
        QList<QPainterPath> paths;
        QRectF box;
        for (Jk_tu_yuan *item : items) {
            paths << item->scenePath();
            box |= item->scenePath().boundingRect();
        }
        const double margin = 10; // mm: a quiet zone of ten modules or more for every kind here
        QCOMPARE(barcode_test::decode(barcode_test::renderBlackWhite(
                     paths, box.adjusted(-margin, -margin, margin, margin), 12)),
                 decoded);
        qDeleteAll(items);
    }

    void refusedContentAddsNothing_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("reason");
        QTest::newRow("EAN-13 letters")
            << 3 << QStringLiteral("59012341234A") << QStringLiteral("Invalid character");
        QTest::newRow("UPC-A check digit")
            << 4 << QStringLiteral("036000291459") << QStringLiteral("check digit");
        QTest::newRow("empty") << 0 << QString() << QStringLiteral("请输入内容");
    }
    void refusedContentAddsNothing()
    {
        QFETCH(int, kind);
        QFETCH(QString, data);
        QFETCH(QString, reason);
        BarcodeActions actions(m_window);
        QSignalSpy spy(&actions, &BarcodeActions::itemsCreated);
        BarcodeDialog *d = actions.openDialog();
        fill(d, kind, data, 30);
        QTest::mouseClick(child<QPushButton>(d, "confirm_Btn"), Qt::LeftButton);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.first().contains(reason, Qt::CaseInsensitive),
                 qPrintable(m_messages.first()));
        QVERIFY(d->isVisible()); // stays open for a correction
        d->close();
    }
};

QTEST_MAIN(TestBarcodeDialog)
#include "tst_barcode_dialog.moc"
