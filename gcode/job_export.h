// Headless export: one design file in, one G-code job out, through the same
// generator as the window, without a window.
//
// Input, by extension (any case): ".lumitra" a project (its first page, with
// its layers as saved); ".svg", ".dxf" a vector drawing; ".png", ".jpg",
// ".jpeg", ".bmp" a bitmap. Single files go on layer 0 with the default
// parameters. The process options (see export_options.h) override the
// parameters of every layer; a mode only applies to layers of its kind, and
// for a single file it must fit the file. Rotary settings come from the
// settings store as for any job. The option "origin" (job_origin.h,
// parseOriginOption) places the job: "user[:ANCHOR]" puts the anchor of the
// output bounds at 0,0 of the work coordinates; absolute when not given.
// On failure nothing is written at the output path and `error` holds a one-line
// reason. Needs a Qt application object; runs on the caller's thread.
#pragma once

#include <QMap>
#include <QString>

namespace lumitra {

struct ExportOptions
{
    QString input;
    QString output;
    QMap<QString, QString> processOptions; // option name without "--" -> value text
};

bool exportJob(const ExportOptions &options, QString *error);

} // namespace lumitra
