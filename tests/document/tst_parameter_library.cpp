#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_panel_controller.h"
#include "layer_rows_panel.h"
#include "message_box.h"
#include "parameter_library.h"
#include "parameter_library_dialog.h"
#include "production_controller.h"
#include "program_state.h"
#include "settings_store.h"
#include "tu_ceng_zhi.h"

#include "layer_bytes.h"
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;

Q_DECLARE_METATYPE(lumitra::ParameterPreset)

namespace {

ParameterPreset samplePreset()
{
    ParameterPreset p;
    p.name = QStringLiteral("椴木 切割");
    p.material = QStringLiteral("椴木");
    p.thicknessMm = 3.5;
    p.power = 95;
    p.speed = 420;
    p.passes = 3;
    p.mode = FillMode;
    p.fillAngle = 45;
    p.intervalMm = 0.08;
    p.overscanMm = 2.5;
    p.unidirectional = true;
    return p;
}

ParameterPreset otherPreset()
{
    ParameterPreset p;
    p.name = QStringLiteral("Acryl");
    p.material = QStringLiteral("Acrylic");
    p.thicknessMm = 2;
    p.power = 60;
    p.speed = 1500;
    return p;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

template<typename T> T *child(QWidget &w, const char *name)
{
    T *c = w.findChild<T *>(QLatin1String(name));
    if (!c)
        qFatal("missing widget %s", name);
    return c;
}

struct Fixture
{
    DesignPages pages;
    LayerRowsPanel rows;
    LayerPaletteBar palette;
    Tu_Ceng_Zhi panel;
    LayerPanelController layers{&pages, &rows, &palette, &panel};
    ProductionController production{&pages, &layers, &panel, nullptr};
    Jk_chang_jing *scene() { return pages.currentScene(); }
    void add(int layer)
    {
        auto *item = new Jk_tu_yuan(0);
        item->layer_id = layer;
        scene()->addItemsUndoable({item});
    }
};

} // namespace

// The parameter library: its JSON form, the settings store, shared files, the
// dialog and applying a preset to the current layer as an undo step.
class TestParameterLibrary : public QObject
{
    Q_OBJECT

    QList<MessageRequest> m_messages;

private slots:
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        LayerList::instance().clear();
        m_messages.clear();
        set_message_handler([this](const MessageRequest &r) {
            m_messages.append(r);
            return 1;
        });
    }

    // Every field survives the JSON form on its own.
    void jsonRoundTrip_data()
    {
        QTest::addColumn<ParameterPreset>("preset");
        const ParameterPreset base = samplePreset();
        QTest::newRow("all set") << base;
        ParameterPreset p = base;
        p.name = QStringLiteral("n \"q\" / \\");
        QTest::newRow("name") << p;
        p = base;
        p.material = QString();
        QTest::newRow("material") << p;
        p = base;
        p.thicknessMm = 0.25;
        QTest::newRow("thickness") << p;
        p = base;
        p.power = 0;
        QTest::newRow("power") << p;
        p = base;
        p.speed = 99999999;
        QTest::newRow("speed") << p;
        p = base;
        p.passes = 999;
        QTest::newRow("passes") << p;
        p = base;
        p.mode = CrossFillMode;
        QTest::newRow("mode") << p;
        p = base;
        p.fillAngle = 360;
        QTest::newRow("angle") << p;
        p = base;
        p.intervalMm = 0.01;
        QTest::newRow("interval") << p;
        p = base;
        p.overscanMm = 100;
        QTest::newRow("overscan") << p;
        p = base;
        p.unidirectional = false;
        QTest::newRow("unidirectional") << p;
    }
    void jsonRoundTrip()
    {
        QFETCH(ParameterPreset, preset);
        const ParameterLibrary library{preset, otherPreset()};
        ParameterLibrary back;
        QString reason;
        QVERIFY2(libraryFromJson(libraryToJson(library), &back, &reason), qPrintable(reason));
        QCOMPARE(back.size(), 2);
        QVERIFY(back.at(0) == preset);
        QVERIFY(back.at(1) == otherPreset());
        QVERIFY(reason.isEmpty());
    }

    void throughSettingsFile()
    {
        ParameterLibrary loaded{otherPreset()};
        QString reason;
        QVERIFY(loadLibrary(&loaded, &reason)); // nothing stored: empty
        QVERIFY(loaded.isEmpty());
        const ParameterLibrary library{samplePreset(), otherPreset()};
        storeLibrary(library);
        // The text sits in config.ini under the library's key.
        QSettings ini(config_path(), QSettings::IniFormat);
        const QString stored = ini.value(settings_key(kParameterLibraryKey)).toString();
        QVERIFY(stored.contains(QStringLiteral("Acrylic")));
        QCOMPARE(get_setting(QStringLiteral("CanShuKu")), stored);
        QVERIFY(loadLibrary(&loaded, &reason));
        QCOMPARE(loaded.size(), 2);
        QVERIFY(loaded.at(0) == samplePreset());
        QVERIFY(loaded.at(1) == otherPreset());
        storeLibrary({});
        QCOMPARE(get_setting(kParameterLibraryKey), QString());
    }

    void malformedTextRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reasonPart");
        const QString good = libraryToJson({samplePreset()});
        QTest::newRow("not json") << "{presets: ["
                                  << "JSON";
        QTest::newRow("array") << "[1, 2]"
                               << "参数库";
        QTest::newRow("other format")
            << QString(good).replace("lumitra-parameters", "something") << "参数库";
        QTest::newRow("version") << QString(good).replace("\"version\": 1", "\"version\": 7")
                                 << "版本";
        QTest::newRow("power too high")
            << QString(good).replace("\"power\": 95", "\"power\": 101") << "power";
        QTest::newRow("speed text")
            << QString(good).replace("\"speed\": 420", "\"speed\": \"fast\"") << "speed";
        QTest::newRow("empty name") << QString(good).replace("椴木 切割", " ") << "name";
        QTest::newRow("passes fraction")
            << QString(good).replace("\"passes\": 3", "\"passes\": 1.5") << "passes";
        QTest::newRow("interval zero")
            << QString(good).replace("\"interval\": 0.08", "\"interval\": 0") << "interval";
    }
    void malformedTextRefused()
    {
        QFETCH(QString, text);
        QFETCH(QString, reasonPart);
        ParameterLibrary library{otherPreset()};
        QString reason;
        QVERIFY(!libraryFromJson(text, &library, &reason));
        QVERIFY2(reason.contains(reasonPart), qPrintable(reason));
        QCOMPARE(library.size(), 1);
        QVERIFY(library.at(0) == otherPreset());

        // The same text in a file: import refused, library untouched.
        QTemporaryDir dir;
        const QString path = dir.filePath("bad.json");
        writeFile(path, text.toUtf8());
        reason.clear();
        QVERIFY(!importLibrary(path, &library, &reason));
        QVERIFY(!reason.isEmpty());
        QCOMPARE(library.size(), 1);
        QVERIFY(library.at(0) == otherPreset());
    }

    // Export then import into an empty library gives it back; importing into
    // a library merges: same name and material replace, others are added.
    void exportImportRoundTrip()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("shared.json");
        const ParameterLibrary library{samplePreset(), otherPreset()};
        QString reason;
        QVERIFY(exportLibrary(library, path, &reason));
        ParameterLibrary fresh;
        int added = -1;
        int replaced = -1;
        QVERIFY(importLibrary(path, &fresh, &reason, &added, &replaced));
        QCOMPARE(fresh.size(), 2);
        QVERIFY(fresh.at(0) == samplePreset());
        QVERIFY(fresh.at(1) == otherPreset());
        QCOMPARE(added, 2);
        QCOMPARE(replaced, 0);

        ParameterPreset mine = otherPreset();
        mine.power = 5;
        ParameterPreset own = samplePreset();
        own.material = QStringLiteral("MDF");
        ParameterLibrary merged{mine, own};
        QVERIFY(importLibrary(path, &merged, &reason, &added, &replaced));
        QCOMPARE(merged.size(), 3);
        QVERIFY(merged.at(0) == otherPreset());  // replaced by the file's
        QVERIFY(merged.at(1) == own);            // kept
        QVERIFY(merged.at(2) == samplePreset()); // added
        QCOMPARE(added, 1);
        QCOMPARE(replaced, 1);

        QVERIFY(!exportLibrary(library, dir.filePath("missing/dir/x.json"), &reason));
        QVERIFY(!reason.isEmpty());
        QVERIFY(!importLibrary(dir.filePath("none.json"), &merged, &reason));
        QCOMPARE(merged.size(), 3);
    }

    void presetFromAndToLayer()
    {
        TuCeng layer(4, false);
        ParameterPreset p = samplePreset();
        applyPreset(p, &layer);
        QCOMPARE(layer.yanse, 4);
        QCOMPARE(layer.mingcheng, QStringLiteral("L4"));
        QVERIFY(presetFromLayer(layer, p.name, p.material, p.thicknessMm) == p);
        // A mode a vector layer lacks is left alone; a bitmap layer takes it.
        p.mode = GreyscaleMode;
        applyPreset(p, &layer);
        QCOMPARE(layer.moshi, int(FillMode));
        TuCeng bitmap(4, true);
        applyPreset(p, &bitmap);
        QCOMPARE(bitmap.moshi, int(GreyscaleMode));
    }

    // Applying a preset to the layer the panel shows is one undo step; undo
    // gives the record back exactly.
    void applyIsOneUndoStep()
    {
        Fixture f;
        f.add(2);
        f.add(7);
        TuCeng *record = LayerList::instance().find(7, false);
        QVERIFY(record);
        f.layers.showParameters(record);
        QCOMPARE(f.panel.layerKey(), (LayerKey{7, false}));
        const QList<QByteArray> before = listBytes();
        QUndoStack *stack = f.scene()->undoStack();
        const int steps = stack->count();

        QVERIFY(f.production.applyPreset(samplePreset()));
        QCOMPARE(stack->count(), steps + 1);
        const TuCeng *applied = LayerList::instance().find(7, false);
        QVERIFY(presetFromLayer(*applied, samplePreset().name, samplePreset().material,
                                samplePreset().thicknessMm)
                == samplePreset());
        QCOMPARE(applied->mingcheng, QStringLiteral("L7"));
        QCOMPARE(listBytes().at(0), before.at(0)); // the other layer is untouched

        stack->undo();
        QCOMPARE(listBytes(), before);
        stack->redo();
        QCOMPARE(LayerList::instance().find(7, false)->gonglv, 95);

        f.panel.setLayer(nullptr);
        QVERIFY(!f.production.applyPreset(samplePreset()));
        QCOMPARE(stack->count(), steps + 1);
    }

    // The dialog: add from the current layer, filter, rename, delete, apply,
    // export and import, everything kept in the settings store.
    void dialogDrivesLibrary()
    {
        Fixture f;
        f.add(3);
        TuCeng *record = LayerList::instance().find(3, false);
        record->gonglv = 33;
        record->sudu = 1234;
        f.layers.showParameters(record);
        f.production.actions().at(0)->trigger();
        ParameterLibraryDialog *dialog = f.production.libraryDialog();
        QVERIFY(dialog);
        QCOMPARE(f.production.actions().at(0)->text(), QStringLiteral("参数库"));
        QCOMPARE(f.production.actions().at(1)->text(), QStringLiteral("材料测试卡"));

        auto *name = child<QLineEdit>(*dialog, "nameEdit");
        auto *material = child<QLineEdit>(*dialog, "materialEdit");
        auto *list = child<QListWidget>(*dialog, "presetList");
        auto *filter = child<QComboBox>(*dialog, "filterBox");
        const auto add = [&](const QString &n, const QString &m) {
            name->clear();
            QTest::keyClicks(name, n);
            material->clear();
            QTest::keyClicks(material, m);
            child<QPushButton>(*dialog, "addButton")->click();
        };
        add("Engrave", "Wood");
        add("Mark", "Slate");
        QCOMPARE(dialog->library().size(), 2);
        QCOMPARE(dialog->library().at(0).power, 33);
        QCOMPARE(dialog->library().at(0).speed, 1234);
        ParameterLibrary stored;
        QString reason;
        QVERIFY(loadLibrary(&stored, &reason));
        QCOMPARE(stored.size(), 2);

        filter->setCurrentIndex(filter->findText("Slate"));
        QCOMPARE(list->count(), 1);
        list->setCurrentRow(0);
        QCOMPARE(dialog->selectedIndex(), 1);
        name->clear();
        QTest::keyClicks(name, "Photo");
        child<QPushButton>(*dialog, "renameButton")->click();
        QCOMPARE(dialog->library().at(1).name, QStringLiteral("Photo"));
        QVERIFY(loadLibrary(&stored, &reason));
        QCOMPARE(stored.at(1).name, QStringLiteral("Photo"));

        // Apply the selected preset to another layer state.
        record = LayerList::instance().find(3, false);
        const int steps = f.scene()->undoStack()->count();
        TuCeng changed = *record;
        changed.gonglv = 70;
        f.layers.applyEdit({LayerKey{3, false}, LayerField::Power, changed, 0});
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 70);
        child<QPushButton>(*dialog, "applyButton")->click();
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 33);
        QCOMPARE(f.scene()->undoStack()->count(), steps + 2);

        // Export, delete, import back (merge).
        QTemporaryDir dir;
        const QString path = dir.filePath("lib.json");
        dialog->setFileChooser([&](QWidget *, bool) { return path; });
        child<QPushButton>(*dialog, "exportButton")->click();
        QVERIFY(QFile::exists(path));
        child<QPushButton>(*dialog, "deleteButton")->click();
        QCOMPARE(dialog->library().size(), 1);
        QVERIFY(m_messages.isEmpty());
        child<QPushButton>(*dialog, "importButton")->click();
        QCOMPARE(dialog->library().size(), 2);
        QCOMPARE(m_messages.size(), 1); // "added 1, replaced 1"
        QVERIFY(m_messages.at(0).message.contains('1'));

        // A malformed file: told why, nothing changed, nothing stored.
        m_messages.clear();
        writeFile(path, "{\"format\":\"lumitra-parameters\",\"version\":1,\"presets\":[{}]}");
        const QString storedBefore = get_setting(kParameterLibraryKey);
        child<QPushButton>(*dialog, "importButton")->click();
        QCOMPARE(m_messages.size(), 1);
        QVERIFY(m_messages.at(0).message.contains(QStringLiteral("导入失败")));
        QCOMPARE(dialog->library().size(), 2);
        QCOMPARE(get_setting(kParameterLibraryKey), storedBefore);
        dialog->close();
    }
};


QTEST_MAIN(TestParameterLibrary)
#include "tst_parameter_library.moc"
