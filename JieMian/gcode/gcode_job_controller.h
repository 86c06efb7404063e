// The window's job actions: "save G-code" to a file of the user's choice, the
// job file a run sends ("code.txt"), and the rotary dialog.
#pragma once

#include "job_origin.h"

#include <QList>
#include <QObject>
#include <QPointF>
#include <QString>
#include <functional>

class Jk_gcode;
class Jk_tu_yuan;
class LayerList;
class QWidget;

// Owns one generator. Messages go through the message-box helper with
// `dialogParent` as their parent. GUI thread only.
class GcodeJobController : public QObject
{
    Q_OBJECT

public:
    // Asks for the file to save a job to; an empty result cancels.
    using FileChooser = std::function<QString(QWidget *parent, const QString &suggestion)>;

    explicit GcodeJobController(QWidget *dialogParent, QObject *parent = nullptr);

    // The generator, for its zhuan_huan_wan_cheng signal.
    Jk_gcode *generator() const { return m_generator; }
    // Layers to walk (the program-wide list unless set; not owned).
    void setLayerList(const LayerList *layers);
    // Replaces the save dialog (tests).
    void setFileChooser(FileChooser chooser);
    // Where saved and run jobs start (job_origin.h); the window gives the
    // machine controller's jobStart(). Unless set, the stored mode and anchor
    // with no known head position.
    void setJobStartSource(std::function<lumitra::JobStart()> source);
    lumitra::JobStart currentJobStart() const;

    // Before a job is saved or run: when items would burn beyond the work
    // area, names them in a question ("继续" / "取消"). True to go on.
    // `machineShift` is where the job is moved to (job start); the items are
    // checked and named where they will burn. A job placed at the user origin
    // is not checked: where that origin lies on the machine is the
    // controller's G92 offset, which the program does not know.
    bool confirmOutsideWorkArea(const QList<Jk_tu_yuan *> &items,
                                const QPointF &machineShift = QPointF());

public slots:
    // The job start is resolved first for save and run: started at the current
    // position while none is known, the user is told and nothing is written.
    // "save G-code": after the work-area question, asks for a ".nc" or ".gcode" file (".nc" is
    // added when the name has neither) and writes the job there. False when cancelled or failed
    // (the user was told).
    bool saveGcode(const QList<Jk_tu_yuan *> &items);
    // Writes the job to `path` (no work-area question: the preview); tells the
    // user and returns false on failure.
    bool saveGcodeTo(const QList<Jk_tu_yuan *> &items, const QString &path);
    // Whether a run goes over the serial link (asked in prepareRun); unless
    // set, never.
    void setSerialLinkSource(std::function<bool()> source) { m_serialSource = std::move(source); }

    // Before a run: the work-area question; with the rotary on, asks
    // "请在滚轴界面检查相关参数再运行!" and stops unless confirmed (with unusable rotary settings
    // it only says so and stops); then writes "code.txt" and makes it the job file of the program
    // state. Over the serial link, a bitmap layer needing more bytes per
    // second than the link carries is named in a question offering its fastest
    // feed for this run ("降速", rewrites the job), "仍然运行" or "取消".
    // True when the job may be sent.
    bool prepareRun(const QList<Jk_tu_yuan *> &items);
    // Opens the rotary dialog (modal); true when its settings were stored.
    bool editRotary();

signals:
    // A job file is ready to be sent (after prepareRun).
    void runFileReady(const QString &path);
    // A job was saved to a user file.
    void saved(const QString &path);

private:
    // Resolves the job start for `items`, gives it to the generator and, with
    // `askWorkArea`, asks the work-area question. False when the job must not
    // be written.
    bool placeJob(const QList<Jk_tu_yuan *> &items, bool askWorkArea);
    bool writeJob(const QList<Jk_tu_yuan *> &items, const QString &path);
    const LayerList &layers() const;
    // The wire question after the job was written; false to cancel.
    bool confirmWireRate(const QList<Jk_tu_yuan *> &items);

    QWidget *m_parent;
    Jk_gcode *m_generator;
    FileChooser m_chooser;
    QString m_lastFolder;
    const LayerList *m_layers = nullptr; // the program-wide list when null
    std::function<lumitra::JobStart()> m_startSource;
    std::function<bool()> m_serialSource;
};
