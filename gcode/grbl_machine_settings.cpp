#include "grbl_machine_settings.h"

#include <QRegularExpression>

GrblMachineSettings GrblMachineSettings::fromMap(const QMap<int, QString> &values)
{
    GrblMachineSettings s;
    auto take = [&values](int number, double *target) {
        bool ok = false;
        const double v = values.value(number).trimmed().toDouble(&ok);
        if (ok && v > 0.0)
            *target = v;
    };
    for (int axis = 0; axis < 3; ++axis) {
        take(110 + axis, &s.maxRate[axis]);
        take(120 + axis, &s.acceleration[axis]);
    }
    take(11, &s.junctionDeviation);
    take(12, &s.arcTolerance);
    if (values.contains(32)) {
        bool ok = false;
        const int v = values.value(32).trimmed().toInt(&ok);
        if (ok)
            s.laserMode = v != 0;
    }
    return s;
}

GrblMachineSettings GrblMachineSettings::fromDeviceInfo(const QMap<QString, QString> &info)
{
    QMap<int, QString> values;
    for (auto it = info.cbegin(); it != info.cend(); ++it) {
        if (!it.key().startsWith(QLatin1Char('$')))
            continue;
        bool ok = false;
        const int number = it.key().mid(1).toInt(&ok);
        if (ok)
            values.insert(number, it.value());
    }
    return fromMap(values);
}

QMap<int, QString> parseGrblSettingsDump(const QString &text)
{
    static const QRegularExpression line(QStringLiteral("^\\s*\\$(\\d+)\\s*=\\s*([-+]?[0-9.]+)"));
    QMap<int, QString> result;
    for (const QString &row : text.split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch m = line.match(row);
        if (m.hasMatch())
            result.insert(m.captured(1).toInt(), m.captured(2));
    }
    return result;
}
