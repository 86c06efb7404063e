#include "parameter_library_dialog.h"
#include "ui_parameter_library_dialog.h"

#include "message_box.h"
#include "tu_ceng.h"

#include <QFileDialog>
#include <QListWidgetItem>

using lumitra::ParameterPreset;

namespace {

QString chooseFile(QWidget *parent, bool save)
{
    const QString filter = ParameterLibraryDialog::tr("参数库 (*.json)");
    if (!save)
        return QFileDialog::getOpenFileName(parent, ParameterLibraryDialog::tr("导入"), QString(),
                                            filter);
    QString path = QFileDialog::getSaveFileName(parent, ParameterLibraryDialog::tr("导出"),
                                                QStringLiteral("parameters.json"), filter);
    if (!path.isEmpty() && !path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive))
        path += QLatin1String(".json");
    return path;
}

QString presetText(const ParameterPreset &p)
{
    return QStringLiteral("%1 | %2 %3 mm | %4% %5 mm/min x%6")
        .arg(p.name, p.material.isEmpty() ? QStringLiteral("-") : p.material)
        .arg(p.thicknessMm)
        .arg(p.power)
        .arg(p.speed)
        .arg(p.passes);
}

} // namespace

ParameterLibraryDialog::ParameterLibraryDialog(QWidget *parent)
    : QDialog(parent), ui(new Ui::ParameterLibraryDialog), m_chooser(chooseFile)
{
    ui->setupUi(this);
    connect(ui->filterBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { fill(); });
    connect(ui->presetList, &QListWidget::currentRowChanged, this, [this] { showSelected(); });
    connect(ui->addButton, &QPushButton::clicked, this, &ParameterLibraryDialog::addFromLayer);
    connect(ui->applyButton, &QPushButton::clicked, this, &ParameterLibraryDialog::applySelected);
    connect(ui->renameButton, &QPushButton::clicked, this, &ParameterLibraryDialog::renameSelected);
    connect(ui->deleteButton, &QPushButton::clicked, this, &ParameterLibraryDialog::deleteSelected);
    connect(ui->importButton, &QPushButton::clicked, this, &ParameterLibraryDialog::importFile);
    connect(ui->exportButton, &QPushButton::clicked, this, &ParameterLibraryDialog::exportFile);
    reload();
}

ParameterLibraryDialog::~ParameterLibraryDialog()
{
    delete ui;
}

void ParameterLibraryDialog::reload()
{
    QString reason;
    if (!lumitra::loadLibrary(&m_library, &reason)) {
        m_library.clear();
        lumitra::show_notice(this, tr("参数库无法读取:%1").arg(reason));
    }
    fill();
}

void ParameterLibraryDialog::fill()
{
    const QString filter =
        ui->filterBox->currentIndex() > 0 ? ui->filterBox->currentText() : QString();
    const int keep = selectedIndex();
    {
        const QSignalBlocker block(ui->filterBox);
        ui->filterBox->clear();
        ui->filterBox->addItem(tr("全部"));
        ui->filterBox->addItems(lumitra::libraryMaterials(m_library));
        const int at = filter.isNull() ? 0 : ui->filterBox->findText(filter);
        ui->filterBox->setCurrentIndex(at < 0 ? 0 : at);
    }
    const bool filtered = ui->filterBox->currentIndex() > 0;
    const QString material = ui->filterBox->currentText();
    const QSignalBlocker block(ui->presetList);
    ui->presetList->clear();
    for (int i = 0; i < m_library.size(); ++i) {
        if (filtered && m_library.at(i).material != material)
            continue;
        auto *item = new QListWidgetItem(presetText(m_library.at(i)), ui->presetList);
        item->setData(Qt::UserRole, i);
        if (i == keep)
            ui->presetList->setCurrentItem(item);
    }
}

int ParameterLibraryDialog::selectedIndex() const
{
    const QListWidgetItem *item = ui->presetList->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : -1;
}

void ParameterLibraryDialog::selectPreset(int index)
{
    for (int row = 0; row < ui->presetList->count(); ++row)
        if (ui->presetList->item(row)->data(Qt::UserRole).toInt() == index)
            ui->presetList->setCurrentRow(row);
}

void ParameterLibraryDialog::showSelected()
{
    const int at = selectedIndex();
    if (at < 0)
        return;
    const ParameterPreset &p = m_library.at(at);
    ui->nameEdit->setText(p.name);
    ui->materialEdit->setText(p.material);
    ui->thicknessBox->setValue(p.thicknessMm);
}

void ParameterLibraryDialog::changed()
{
    lumitra::storeLibrary(m_library);
    fill();
}

void ParameterLibraryDialog::addFromLayer()
{
    const TuCeng *layer = m_layer ? m_layer() : nullptr;
    if (!layer) {
        lumitra::show_notice(this, tr("请先选择一个图层"));
        return;
    }
    const QString name = ui->nameEdit->text().trimmed();
    if (name.isEmpty()) {
        lumitra::show_notice(this, tr("请输入名称"));
        return;
    }
    const QString material = ui->materialEdit->text().trimmed();
    const ParameterPreset preset =
        lumitra::presetFromLayer(*layer, name, material, ui->thicknessBox->value());
    int at = lumitra::findPreset(m_library, name, material);
    if (at >= 0) {
        if (!lumitra::show_message(this, lumitra::MessageKind::Question, tr("取消"), tr("确定"),
                                   tr("已有同名预设,是否替换?"), tr("提示")))
            return;
        m_library[at] = preset;
    } else {
        m_library.append(preset);
        at = m_library.size() - 1;
    }
    changed();
    selectPreset(at);
}

void ParameterLibraryDialog::applySelected()
{
    const int at = selectedIndex();
    if (at < 0) {
        lumitra::show_notice(this, tr("请先选择一个预设"));
        return;
    }
    if (!m_apply || !m_apply(m_library.at(at)))
        lumitra::show_notice(this, tr("请先选择一个图层"));
}

void ParameterLibraryDialog::renameSelected()
{
    const int at = selectedIndex();
    const QString name = ui->nameEdit->text().trimmed();
    const QString material = ui->materialEdit->text().trimmed();
    if (at < 0 || name.isEmpty()) {
        lumitra::show_notice(this, at < 0 ? tr("请先选择一个预设") : tr("请输入名称"));
        return;
    }
    const int other = lumitra::findPreset(m_library, name, material);
    if (other >= 0 && other != at) {
        lumitra::show_notice(this, tr("已有同名预设"));
        return;
    }
    m_library[at].name = name;
    m_library[at].material = material;
    m_library[at].thicknessMm = ui->thicknessBox->value();
    changed();
    selectPreset(at);
}

void ParameterLibraryDialog::deleteSelected()
{
    const int at = selectedIndex();
    if (at < 0) {
        lumitra::show_notice(this, tr("请先选择一个预设"));
        return;
    }
    m_library.removeAt(at);
    changed();
}

void ParameterLibraryDialog::importFile()
{
    const QString path = m_chooser(this, false);
    if (path.isEmpty())
        return;
    QString reason;
    int added = 0;
    int replaced = 0;
    if (!lumitra::importLibrary(path, &m_library, &reason, &added, &replaced)) {
        lumitra::show_notice(this, tr("导入失败:%1").arg(reason));
        return;
    }
    changed();
    lumitra::show_notice(this, tr("已添加%1个预设,替换%2个").arg(added).arg(replaced));
}

void ParameterLibraryDialog::exportFile()
{
    const QString path = m_chooser(this, true);
    if (path.isEmpty())
        return;
    QString reason;
    if (!lumitra::exportLibrary(m_library, path, &reason))
        lumitra::show_notice(this, tr("导出失败:%1").arg(reason));
}
