#include "work_area.h"

#include "program_state.h"
#include "settings_store.h"

#include <QDebug>
#include <cmath>

namespace lumitra {

MachineTravel work_area_from_machine(const QMap<int, QString> &settings)
{
    MachineTravel t;
    auto number = [&settings](int key) { return settings.value(key).toDouble(); };
    if (settings.contains(110))
        t.maxRateX = int(std::lround(number(110)));
    if (settings.contains(101))
        t.maxRateY = int(std::lround(number(101)));
    t.zTravel = number(132);

    const double x = number(130);
    const double y = number(131);
    if (x != 0.0 && y != 0.0) {
        t.workAreaKnown = true;
        t.width = int(std::lround(x));
        t.height = int(std::lround(y));
        ProgramState &s = programState();
        s.width = t.width;
        s.height = t.height;
        set_setting(QStringLiteral("BianKuang/kuan"), QString::number(t.width));
        set_setting(QStringLiteral("BianKuang/gao"), QString::number(t.height));
    }
    qDebug() << " gao_du" << programState().height << programState().width;
    return t;
}

QMap<int, QString> numbered_settings(const QMap<QString, QString> &info)
{
    QMap<int, QString> out;
    for (auto it = info.cbegin(); it != info.cend(); ++it) {
        if (!it.key().startsWith(QLatin1Char('$')))
            continue;
        bool ok = false;
        const int n = it.key().mid(1).toInt(&ok);
        if (ok)
            out.insert(n, it.value());
    }
    return out;
}

void load_work_area()
{
    bool okW = false, okH = false;
    const int w = get_setting(QStringLiteral("BianKuang/kuan")).toInt(&okW);
    const int h = get_setting(QStringLiteral("BianKuang/gao")).toInt(&okH);
    ProgramState &s = programState();
    if (okW && w > 0)
        s.width = w;
    if (okH && h > 0)
        s.height = h;
}

} // namespace lumitra
