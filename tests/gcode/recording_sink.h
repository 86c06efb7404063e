// A toolpath receiver that keeps every step, for checking what builders hand on.
#pragma once

#include "toolpath_sink.h"

#include <QPointF>
#include <QVector>
#include <cmath>

struct ToolStep
{
    enum Kind { Travel, Burn, Coast, Grey };
    Kind kind;
    QPointF at;
    int grey = 0;
};

inline double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

class RecordingSink : public lumitra::ToolpathSink
{
public:
    void travel(double x, double y) override { steps.append({ToolStep::Travel, {x, y}}); }
    void burn(double x, double y) override { steps.append({ToolStep::Burn, {x, y}}); }
    void coast(double x, double y) override { steps.append({ToolStep::Coast, {x, y}}); }
    void burnGrey(double x, double y, int grey) override
    {
        steps.append({ToolStep::Grey, {x, y}, grey});
    }
    bool stopRequested() const override { return stopAfter >= 0 && steps.size() >= stopAfter; }

    // The kinds of all steps as letters: T travel, B burn, C coast, G grey.
    QByteArray kinds() const
    {
        QByteArray out;
        for (const ToolStep &s : steps)
            out += "TBCG"[s.kind];
        return out;
    }
    // Burnt stretches: (from, to) for every burn step, from the step before it.
    QVector<QPair<QPointF, QPointF>> burns() const
    {
        QVector<QPair<QPointF, QPointF>> out;
        for (int i = 1; i < steps.size(); ++i) {
            if (steps[i].kind == ToolStep::Burn || steps[i].kind == ToolStep::Grey)
                out.append({steps[i - 1].at, steps[i].at});
        }
        return out;
    }
    // Total length of the steps of one kind (burns include grey burns).
    double length(ToolStep::Kind kind) const
    {
        double total = 0;
        for (int i = 1; i < steps.size(); ++i) {
            const bool grey = steps[i].kind == ToolStep::Grey;
            if ((grey ? ToolStep::Burn : steps[i].kind) == kind)
                total += distance(steps[i - 1].at, steps[i].at);
        }
        return total;
    }

    QVector<ToolStep> steps;
    int stopAfter = -1; // ask to stop once this many steps were taken
};
