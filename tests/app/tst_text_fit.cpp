// Every text of the main window and of every dialog is shown whole in every
// interface language, with each form at its minimum size: German and Russian
// run a third longer than English, and a cut-off button is a button the user
// cannot read.
#include "align_panel.h"
#include "array_dialog.h"
#include "barcode_dialog.h"
#include "controller_search_dialog.h"
#include "ge_ren_zhong_xin.h"
#include "geng_xin_xia_zai.h"
#include "gun_zhou.h"
#include "hou_tai_jie_kou.h"
#include "image_cache.h"
#include "jiao_zhun.h"
#include "jk_deng_lu.h"
#include "jk_su_cai.h"
#include "jk_wen_zi2.h"
#include "job_preview_dialog.h"
#include "language.h"
#include "layer_list.h"
#include "layer_panel_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "moshiyulan.h"
#include "move_dialog.h"
#include "offset_dialog.h"
#include "parameter_library_dialog.h"
#include "photo_panel.h"
#include "program_state.h"
#include "qidongye.h"
#include "resume_dialog.h"
#include "sd_file_manager.h"
#include "su_cai_shang_chuan.h"
#include "su_cai_xiang_qing.h"
#include "test_card_dialog.h"
#include "tu_ceng_zhi.h"
#include "update_pack.h"
#include "widget.h"
#include "wifi_she_zhi.h"
#include "window_driver.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>
#include <functional>
#include <memory>

using namespace lumitra;

namespace {

// A three-line job file for the resume dialog.
lumitra::gcode::JobStateIndex smallJob()
{
    static QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("job.nc"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("G0X1Y1\nG1X20Y5S500F1000\nG1X1Y1\n");
    file.close();
    lumitra::gcode::JobStateIndex job;
    job.build(path);
    return job;
}

// Room a text needs beyond its own advance is left to the widget's size hint,
// which the style computes with the same font; one pixel of rounding is
// forgiven.
constexpr int kSlack = 1;

QString describe(const QWidget *w)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(w->metaObject()->className()), w->objectName());
}

// The texts of `root` and its children that do not get the room they need.
QStringList cutTexts(QWidget *root)
{
    QStringList cut;
    QList<QWidget *> all = root->findChildren<QWidget *>();
    all.prepend(root);
    for (QWidget *w : all) {
        if (!w->isVisibleTo(root) || w->width() <= 0)
            continue;
        if (auto *b = qobject_cast<QAbstractButton *>(w)) {
            if (b->text().isEmpty())
                continue;
            // A push button's size hint has a style minimum (80 px) that says
            // nothing about its text; what the text needs is its advance plus
            // the button's margin and frame, as the style sizes it (and its icon).
            int need = b->sizeHint().width();
            if (qobject_cast<QPushButton *>(w)) {
                const QStyle *st = b->style();
                need = b->fontMetrics().horizontalAdvance(b->text())
                       + st->pixelMetric(QStyle::PM_ButtonMargin, nullptr, b)
                       + 2 * st->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, b)
                       + (b->icon().isNull() ? 0 : b->iconSize().width() + 4);
            }
            if (need > b->width() + kSlack)
                cut << QStringLiteral("%1: \"%2\" needs %3, has %4")
                           .arg(describe(w), b->text())
                           .arg(need)
                           .arg(b->width());
        } else if (auto *l = qobject_cast<QLabel *>(w)) {
            if (l->text().isEmpty() || l->wordWrap() || !l->pixmap(Qt::ReturnByValue).isNull())
                continue;
            if (l->sizeHint().width() > l->width() + kSlack)
                cut << QStringLiteral("%1: \"%2\" needs %3, has %4")
                           .arg(describe(w), l->text())
                           .arg(l->sizeHint().width())
                           .arg(l->width());
        } else if (auto *g = qobject_cast<QGroupBox *>(w)) {
            const int need = g->fontMetrics().horizontalAdvance(g->title()) + 16;
            if (!g->title().isEmpty() && need > g->width() + kSlack)
                cut << QStringLiteral("%1: title \"%2\" needs %3, has %4")
                           .arg(describe(w), g->title())
                           .arg(need)
                           .arg(g->width());
        } else if (auto *t = qobject_cast<QTabBar *>(w)) {
            const int space = t->style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, t);
            for (int i = 0; i < t->count(); ++i) {
                int need = t->fontMetrics().horizontalAdvance(t->tabText(i)) + space;
                for (QTabBar::ButtonPosition side : {QTabBar::LeftSide, QTabBar::RightSide})
                    if (QWidget *button = t->tabButton(i, side))
                        need += button->width();
                if (need > t->tabRect(i).width() + kSlack)
                    cut << QStringLiteral("%1: tab \"%2\"").arg(describe(w), t->tabText(i));
            }
        } else if (auto *h = qobject_cast<QHeaderView *>(w)) {
            if (h->orientation() != Qt::Horizontal || !h->model())
                continue;
            for (int i = 0; i < h->count(); ++i) {
                const QString text = h->model()->headerData(i, Qt::Horizontal).toString();
                const int need = h->fontMetrics().size(0, text).width()
                                 + 2 * h->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, h);
                if (!h->isSectionHidden(i) && need > h->sectionSize(i) + kSlack)
                    cut << QStringLiteral("%1: column \"%2\"").arg(describe(w), text);
            }
        } else if (auto *c = qobject_cast<QComboBox *>(w)) {
            if (c->currentText().isEmpty() || c->isEditable())
                continue;
            QStyleOptionComboBox option;
            option.initFrom(c);
            const QRect field = c->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, c);
            if (c->fontMetrics().horizontalAdvance(c->currentText()) > field.width() + kSlack)
                cut << QStringLiteral("%1: \"%2\"").arg(describe(w), c->currentText());
        }
    }
    return cut;
}

// Shows a form at its minimum size and lets its layouts settle.
void showSmallest(QWidget *form)
{
    form->show();
    form->resize(form->minimumSizeHint().expandedTo(form->minimumSize()));
    QTest::qWait(10);
    QCoreApplication::processEvents();
}

using FormMaker = std::function<QWidget *()>;

} // namespace

// A cloud dialog with its own interface (owned by the dialog) aimed at a
// closed port on this machine, so that nothing leaves it.
template<class D, class Make> QWidget *withCloud(Make make)
{
    auto *api = new lumitra::Hou_tai_jie_kou;
    api->setBase(QUrl(QStringLiteral("http://127.0.0.1:9")));
    D *dialog = make(api);
    api->setParent(dialog);
    return dialog;
}

class TestTextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        set_message_handler([](const MessageRequest &) { return 0; });
    }
    void cleanupTestCase() { set_message_handler({}); }

    void everyFormInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("form");
        const QStringList forms{"Widget",
                                "MachinePanel",
                                "Tu_Ceng_Zhi",
                                "AlignPanel",
                                "Jk_wen_zi2",
                                "MoveDialog",
                                "ArrayDialog",
                                "Gun_Zhou",
                                "MoShiYuLan",
                                "JobPreviewDialog",
                                "WIFI_She_Zhi",
                                "SdFileManager",
                                "ControllerSearchDialog",
                                "JiaoZhun",
                                "PhotoPanel",
                                "QiDongYe",
                                "ParameterLibraryDialog",
                                "TestCardDialog",
                                "BarcodeDialog",
                                "Jk_deng_lu",
                                "GeRenZhongXin",
                                "jk_su_cai",
                                "Su_Cai_Xiang_Qing",
                                "Su_Cai_Shang_Chuan",
                                "GengXinXiaZai",
                                "OffsetDialog",
                                "ResumeDialog",
                                "ResumeDialogLinkLost"};
        QStringList languages{QString()};
        languages << all_language_codes();
        for (const QString &language : languages)
            for (const QString &form : forms)
                QTest::newRow(qPrintable((language.isEmpty() ? QStringLiteral("source") : language)
                                         + QLatin1Char('/') + form))
                    << language << form;
    }
    void everyFormInEveryLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, form);
        resetProgramState();
        QTranslator translator;
        QTranslator qtTexts; // Qt's own standard buttons, as the application loads them
        if (!language.isEmpty()) {
            QVERIFY(translator.load(language_resource(language)));
            QCoreApplication::installTranslator(&translator);
            if (qtTexts.load(qt_translation_file(language)))
                QCoreApplication::installTranslator(&qtTexts);
        }
        const QMap<QString, FormMaker> makers{
            {"MachinePanel", [] { return new MachinePanel; }},
            {"Tu_Ceng_Zhi", [] { return new Tu_Ceng_Zhi; }},
            {"AlignPanel", [] { return new AlignPanel; }},
            {"Jk_wen_zi2", [] { return new Jk_wen_zi2; }},
            {"MoveDialog", [] { return new MoveDialog; }},
            {"ArrayDialog", [] { return new ArrayDialog; }},
            {"Gun_Zhou", [] { return new Gun_Zhou; }},
            {"MoShiYuLan", [] { return new MoShiYuLan; }},
            {"JobPreviewDialog", [] { return new JobPreviewDialog; }},
            {"WIFI_She_Zhi", [] { return new WIFI_She_Zhi; }},
            {"SdFileManager", [] { return new SdFileManager; }},
            {"ControllerSearchDialog",
             [] { return new ControllerSearchDialog(QStringList(), 80); }},
            {"JiaoZhun", [] { return new JiaoZhun; }},
            {"PhotoPanel", [] { return new PhotoPanel; }},
            {"QiDongYe", [] { return new QiDongYe; }},
            {"ParameterLibraryDialog", [] { return new ParameterLibraryDialog; }},
            {"TestCardDialog", [] { return new TestCardDialog; }},
            {"BarcodeDialog", [] { return new BarcodeDialog; }},
            // The cloud dialogs, each with an interface of its own that only
            // reaches a closed port on this machine.
            {"Jk_deng_lu",
             [] {
                 return withCloud<Jk_deng_lu>(
                     [](auto *api) { return new Jk_deng_lu(api, nullptr); });
             }},
            {"GeRenZhongXin",
             [] {
                 return withCloud<GeRenZhongXin>([](auto *api) { return new GeRenZhongXin(api); });
             }},
            {"jk_su_cai",
             [] { return withCloud<jk_su_cai>([](auto *api) { return new jk_su_cai(api); }); }},
            {"Su_Cai_Xiang_Qing",
             [] {
                 return withCloud<Su_Cai_Xiang_Qing>([](auto *api) {
                     return new Su_Cai_Xiang_Qing(api, new lumitra::ImageCache(api, api),
                                                  QString());
                 });
             }},
            {"Su_Cai_Shang_Chuan",
             [] {
                 return withCloud<Su_Cai_Shang_Chuan>(
                     [](auto *api) { return new Su_Cai_Shang_Chuan(api); });
             }},
            {"GengXinXiaZai",
             [] {
                 return withCloud<GengXinXiaZai>([](auto *api) {
                     return new GengXinXiaZai(new lumitra::UpdatePack(api, api));
                 });
             }},
            {"OffsetDialog", [] { return new OffsetDialog; }},
            // After an alarm: the longest form, with the warning shown.
            {"ResumeDialog", [] { return new ResumeDialog(smallJob(), 2, true); }},
            {"ResumeDialogLinkLost",
             [] {
                 auto *d = new ResumeDialog(smallJob(), 2, true);
                 // The longest warning: a WiFi board out of reach.
                 d->setWarning(QCoreApplication::translate(
                     "ResumeOffer",
                     "与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停"
                     "止,再归位或重新设置原点。"));
                 return d;
             }},
        };
        std::unique_ptr<QWidget> shown;
        if (form == QLatin1String("Widget")) {
            auto *w = new Widget;
            shown.reset(w);
            window_test::Driver d(w);
            w->show();
            for (int i = 0; i < 3; ++i) { // layer rows with their mode boxes
                d.drawRectangle(QPointF(20 + 40 * i, -20), QPointF(50 + 40 * i, -50));
                w->layerController()->moveSelectionToLayer(i);
            }
            showSmallest(w);
            const QSize least = w->size();
            QVERIFY2(
                least.width() <= 1280 && least.height() <= 720,
                qPrintable(QStringLiteral("minimum %1x%2").arg(least.width()).arg(least.height())));
        } else {
            shown.reset(makers.value(form)());
            QVERIFY(shown);
            showSmallest(shown.get());
        }
        const QStringList cut = cutTexts(shown.get());
        shown.reset();
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::removeTranslator(&qtTexts);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestTextFit)
#include "tst_text_fit.moc"
