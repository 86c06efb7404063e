// Rotary rewrite, its settings in the settings store, and the Z bumps.
#include "gcode_test_support.h"
#include "rotary.h"
#include "settings_store.h"

#include <QtTest>

using namespace lumitra;

Q_DECLARE_METATYPE(lumitra::RotarySettings)

class TestRotary : public QObject
{
    Q_OBJECT

private slots:
    void rewrite_data();
    void rewrite();
    void settingsRoundTrip_data();
    void settingsRoundTrip();
    void missingSettingsKeepDefaults();
    void usabilityAndBumps_data();
    void usabilityAndBumps();
};

void TestRotary::rewrite_data()
{
    QTest::addColumn<RotarySettings>("settings");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray line("G1X10.00Y-20.00\n");
    QTest::newRow("mode 0 unchanged") << rotarySettings(0, "Y", 180, 50, 360) << line << line;
    QTest::newRow("other mode unchanged") << rotarySettings(3, "Y", 180, 50, 360) << line << line;
    QTest::newRow("circumference on Y")
        << rotarySettings(1, "Y", 180, 50, 360) << line << QByteArray("G1X10.00Z-40.000\n");
    QTest::newRow("diameter uses 3.14") << rotarySettings(2, "Y", 0, 50, 360)
                                        << QByteArray("G1Y-31.40\n") << QByteArray("G1Z-72.000\n");
    QTest::newRow("X flips the sign")
        << rotarySettings(1, "X", 100, 0, 100) << QByteArray("G1X10.00\nG1X-10.00\n")
        << QByteArray("G1Z-10.000\nG1Z10.000\n");
    QTest::newRow("A axis") << rotarySettings(1, "A", 100, 0, 200) << QByteArray("G1X1A2.5Y3\n")
                            << QByteArray("G1X1Z5.000Y3\n");
    QTest::newRow("unknown letter works on Y")
        << rotarySettings(1, "B", 100, 0, 200) << QByteArray("G1X1Y2\n")
        << QByteArray("G1X1Z4.000\n");
    QTest::newRow("lowercase letter is not X")
        << rotarySettings(1, "x", 100, 0, 200) << QByteArray("G1X1Y2\n")
        << QByteArray("G1X1Z4.000\n");
    QTest::newRow("not a number reads 0")
        << rotarySettings(1, "Y", 100, 0, 200) << QByteArray("Y-\nY1.2.3\n")
        << QByteArray("Z0.000\nZ0.000\n");
    QTest::newRow("trailer restored on Y")
        << rotarySettings(1, "Y", 180, 0, 360) << QByteArray("M5\nG90\nG0X0Y0\nM2\n")
        << QByteArray("M5\nG90\nG0X0Y0\nM2\n");
    QTest::newRow("trailer restored on X")
        << rotarySettings(1, "X", 180, 0, 360) << QByteArray("G0X0Y0\n") << QByteArray("G0X0Y0\n");
    QTest::newRow("only the last return restored")
        << rotarySettings(2, "Y", 0, 40, 360) << QByteArray("G0X0Y0\nG1X5Y10\nG0X0Y0\n")
        << QByteArray("G0X0Z0.000\nG1X5Z28.662\nG0X0Y0\n");
    QTest::newRow("flipped tiny value reads as zero and is restored")
        << rotarySettings(1, "X", 100, 0, 100) << QByteArray("G0X0.0001Y0\n")
        << QByteArray("G0X0Y0\n");
}

void TestRotary::rewrite()
{
    QFETCH(RotarySettings, settings);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    QCOMPARE(rewriteForRotary(input, settings), expected);
}

void TestRotary::settingsRoundTrip_data()
{
    // Doubles are stored in their shortest form with six significant digits.
    QTest::addColumn<RotarySettings>("settings");
    QTest::addColumn<QStringList>("stored"); // circumference, diameter, units per turn
    QTest::newRow("six significant digits")
        << rotarySettings(2, "X", 3.14159265, 12.3456789, 0.000123456)
        << QStringList{"3.14159", "12.3457", "0.000123456"};
    QTest::newRow("large") << rotarySettings(0, "A", 1234567, 0.5, 100)
                           << QStringList{"1.23457e+06", "0.5", "100"};
}

void TestRotary::settingsRoundTrip()
{
    QFETCH(RotarySettings, settings);
    QFETCH(QStringList, stored);
    saveRotarySettings(settings);
    QCOMPARE(get_setting(QLatin1String(kRotaryCircumferenceKey)), stored[0]);
    QCOMPARE(get_setting(QLatin1String(kRotaryDiameterKey)), stored[1]);
    QCOMPARE(get_setting(QLatin1String(kRotaryUnitsKey)), stored[2]);
    QCOMPARE(get_setting(QLatin1String(kRotaryModeKey)), QString::number(settings.mode));
    QCOMPARE(get_setting(QLatin1String(kRotaryAxisKey)), settings.axis);

    const RotarySettings loaded = loadRotarySettings();
    QCOMPARE(loaded.mode, settings.mode);
    QCOMPARE(loaded.axis, settings.axis);
    QCOMPARE(loaded.circumference, stored[0].toDouble());
    QCOMPARE(loaded.diameter, stored[1].toDouble());
    QCOMPARE(loaded.unitsPerTurn, stored[2].toDouble());
}

void TestRotary::missingSettingsKeepDefaults()
{
    for (const char *key : {kRotaryModeKey, kRotaryAxisKey, kRotaryCircumferenceKey,
                            kRotaryDiameterKey, kRotaryUnitsKey})
        set_setting(QLatin1String(key), QString());
    set_setting(QLatin1String(kRotaryUnitsKey), QStringLiteral("not a number"));
    const RotarySettings loaded = loadRotarySettings();
    const RotarySettings defaults;
    QCOMPARE(loaded.mode, int(RotarySettings::Off));
    QCOMPARE(loaded.axis, QStringLiteral("Y"));
    QCOMPARE(loaded.circumference, defaults.circumference);
    QCOMPARE(loaded.diameter, defaults.diameter);
    QCOMPARE(loaded.unitsPerTurn, defaults.unitsPerTurn);
}

void TestRotary::usabilityAndBumps_data()
{
    QTest::addColumn<RotarySettings>("settings");
    QTest::addColumn<bool>("usable");
    QTest::addColumn<bool>("jobFlag");
    QTest::addColumn<QByteArray>("start"); // the bump before the job
    QTest::addColumn<QByteArray>("path");  // the bump after each path's first move

    const QByteArray up("G91\nG0Z7\nG0Z-7\nG90\n");
    const QByteArray down("G91\nG0Z-7\nG0Z7\nG90\n");
    const QByteArray none;
    QTest::newRow("off ignores zeros")
        << rotarySettings(0, "X", 0, 0, 0) << true << true << none << none;
    QTest::newRow("circumference zero")
        << rotarySettings(1, "Y", 0, 50, 360) << false << true << down << none;
    QTest::newRow("X, circumference mode ignores diameter")
        << rotarySettings(1, "X", 100, 0, 360) << true << true << up << up;
    QTest::newRow("X without flag")
        << rotarySettings(2, "X", 1, 1, 1) << true << false << none << up;
    QTest::newRow("diameter negative")
        << rotarySettings(2, "Y", 100, -1, 360) << false << true << down << none;
    QTest::newRow("no units") << rotarySettings(2, "Y", 100, 50, 0) << false << true << down
                              << none;
    QTest::newRow("mode 3 on X") << rotarySettings(3, "X", 1, 1, 1) << true << true << none << up;
}

void TestRotary::usabilityAndBumps()
{
    QFETCH(RotarySettings, settings);
    QFETCH(bool, usable);
    QFETCH(bool, jobFlag);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, path);
    QCOMPARE(settings.isUsable(), usable);
    QCOMPARE(rotaryStartBump(settings, jobFlag), start);
    QCOMPARE(rotaryPathBump(settings), path);
}

QTEST_GUILESS_MAIN(TestRotary)
#include "tst_rotary.moc"
