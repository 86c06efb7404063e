// The window's job actions: "save G-code" to a file of the user's choice, the
// job file a run sends ("code.txt"), and the rotary dialog.
#pragma once

#include <QList>
#include <QObject>
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

    // Before a job is saved or run: when items would burn beyond the work
    // area, names them in a question ("继续" / "取消"). True to go on.
    bool confirmOutsideWorkArea(const QList<Jk_tu_yuan *> &items);

public slots:
    // "save G-code": after the work-area question, asks for a ".nc" or ".gcode" file (".nc" is
    // added when the name has neither) and writes the job there. False when cancelled or failed
    // (the user was told).
    bool saveGcode(const QList<Jk_tu_yuan *> &items);
    // Writes the job to `path`; tells the user and returns false on failure.
    bool saveGcodeTo(const QList<Jk_tu_yuan *> &items, const QString &path);
    // Before a run: the work-area question; with the rotary on, asks
    // "请在滚轴界面检查相关参数再运行!" and stops unless confirmed (with unusable rotary settings
    // it only says so and stops); then writes "code.txt" and makes it the job file of the program
    // state. True when the job may be sent.
    bool prepareRun(const QList<Jk_tu_yuan *> &items);
    // Opens the rotary dialog (modal); true when its settings were stored.
    bool editRotary();

signals:
    // A job file is ready to be sent (after prepareRun).
    void runFileReady(const QString &path);
    // A job was saved to a user file.
    void saved(const QString &path);

private:
    QWidget *m_parent;
    Jk_gcode *m_generator;
    FileChooser m_chooser;
    QString m_lastFolder;
    const LayerList *m_layers = nullptr; // the program-wide list when null
};
