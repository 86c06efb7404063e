#include "tu_ceng_zhi.h"

#include "tu_ceng.h"
#include "ui_tu_ceng_zhi.h"
#include "wheel_guard.h"

namespace {
void setBlank(QAbstractSpinBox *box, bool blank)
{
    box->setReadOnly(blank);
    // A blank box must not take focus: losing it would write the number back.
    box->setFocusPolicy(blank ? Qt::NoFocus : Qt::StrongFocus);
    if (blank)
        box->clear();
}

// Sets a box only when it shows another value: setting it anyway would
// reformat the text under the user's cursor.
template<typename Box, typename Value> void showValue(Box *box, Value v)
{
    if (box->value() != v || box->text().isEmpty())
        box->setValue(v);
}

QStringList itemTexts(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}
} // namespace

template<typename Box, typename Value>
void Tu_Ceng_Zhi::bind(Box *box, LayerField field, Value TuCeng::*member)
{
    connect(box, QOverload<Value>::of(&Box::valueChanged), this, [=](Value v) {
        if (m_loading || !m_layer || box->isReadOnly())
            return;
        TuCeng value;
        value.*member = v;
        request(field, value, m_session);
    });
    connect(box, &QAbstractSpinBox::editingFinished, this, [this] { ++m_session; });
}

Tu_Ceng_Zhi::Tu_Ceng_Zhi(QWidget *parent) : QWidget(parent), ui(new Ui::Tu_Ceng_Zhi)
{
    ui->setupUi(this);
    bind(ui->fangxiang_Box, LayerField::Direction, &TuCeng::fangxiang);
    bind(ui->jianju_Box, LayerField::Spacing, &TuCeng::jianju);
    bind(ui->saomiao_Box, LayerField::Overscan, &TuCeng::saomiao);
    bind(ui->sudu_Box, LayerField::Speed, &TuCeng::sudu);
    bind(ui->gonglv_Box, LayerField::Power, &TuCeng::gonglv);
    bind(ui->cishu_Box, LayerField::Passes, &TuCeng::cishu);
    bind(ui->kerf_Box, LayerField::Kerf, &TuCeng::kerf);
    connect(ui->cutOrder_Box, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        if (m_loading || !m_layer || index == m_layer->cutOrder)
            return;
        TuCeng value;
        value.cutOrder = index;
        request(LayerField::CutOrder, value, 0);
    });
    connect(ui->moshi_Box, QOverload<int>::of(&QComboBox::activated), this,
            &Tu_Ceng_Zhi::onModeActivated);
    connect(ui->mingcheng_Edit, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (!m_layer)
            return;
        TuCeng value;
        value.mingcheng = text;
        request(LayerField::Name, value, m_session);
    });
    connect(ui->mingcheng_Edit, &QLineEdit::editingFinished, this, [this] { ++m_session; });
    const auto bindCheck = [this](QCheckBox *box, LayerField field, bool TuCeng::*member) {
        connect(box, &QCheckBox::toggled, this, [=](bool on) {
            if (m_loading || !m_layer)
                return;
            TuCeng value;
            value.*member = on;
            request(field, value, 0);
        });
    };
    bindCheck(ui->shuchu_Box, LayerField::Output, &TuCeng::shuchu);
    bindCheck(ui->xianshi_Box, LayerField::Show, &TuCeng::xianshi);
    bindCheck(ui->danxaing_Box, LayerField::SingleDirection, &TuCeng::danxiang);
    bindCheck(ui->jingxi_Box, LayerField::FineCurves, &TuCeng::jingxi);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, [this] {
        emit confirmed();
        if (isWindow())
            hide();
    });
    lumitra::guardWheel(this);
    setLayer(nullptr);
}

Tu_Ceng_Zhi::~Tu_Ceng_Zhi()
{
    delete ui;
}

void Tu_Ceng_Zhi::request(LayerField field, const TuCeng &value, int session)
{
    emit editRequested(LayerEdit{m_key, field, value, session});
}

void Tu_Ceng_Zhi::setLayer(TuCeng *layer)
{
    const bool another = !layer || !m_layer || m_key != LayerKey{layer->yanse, layer->tupian};
    m_layer = layer;
    setEnabled(layer != nullptr);
    if (!layer)
        return;
    if (another)
        ++m_session; // edits of another layer never merge with these
    m_key = LayerKey{layer->yanse, layer->tupian};
    m_loading = true;
    const QStringList labels = modeLabelsForPanel(layer->tupian);
    if (itemTexts(ui->moshi_Box) != labels) {
        ui->moshi_Box->clear();
        ui->moshi_Box->addItems(labels);
    }
    if (ui->mingcheng_Edit->text() != layer->mingcheng)
        ui->mingcheng_Edit->setText(layer->mingcheng);
    ui->moshi_Box->setCurrentIndex(layer->moshi);
    onModeActivated(layer->moshi); // dependent widgets follow the mode
    showValue(ui->fangxiang_Box, layer->fangxiang);
    showValue(ui->jianju_Box, layer->jianju);
    showValue(ui->saomiao_Box, layer->saomiao);
    showValue(ui->cishu_Box, layer->cishu);
    ui->danxaing_Box->setChecked(layer->danxiang);
    ui->jingxi_Box->setChecked(layer->jingxi);
    showValue(ui->sudu_Box, layer->sudu);
    showValue(ui->gonglv_Box, layer->gonglv);
    ui->shuchu_Box->setChecked(layer->shuchu);
    ui->xianshi_Box->setChecked(layer->xianshi);
    showValue(ui->kerf_Box, layer->kerf);
    ui->cutOrder_Box->setCurrentIndex(layer->cutOrder == CutOptimised ? 1 : 0);
    // Kerf and cut order belong to cut outlines, not to bitmaps.
    for (QWidget *w :
         {static_cast<QWidget *>(ui->kerf_Box), static_cast<QWidget *>(ui->kerf_Lab),
          static_cast<QWidget *>(ui->cutOrder_Box), static_cast<QWidget *>(ui->cutOrder_Lab)})
        w->setEnabled(!layer->tupian);
    updateFillFields();
    m_loading = false;
}

void Tu_Ceng_Zhi::onModeActivated(int index)
{
    if (!m_layer)
        return;
    updateFillFields();
    if (!m_loading && index != m_layer->moshi) {
        TuCeng value;
        value.moshi = index;
        request(LayerField::Mode, value, 0);
    }
}

void Tu_Ceng_Zhi::updateFillFields()
{
    // The mode shown decides, so the fields follow a pick at once.
    const bool lineMode = !m_layer->tupian && ui->moshi_Box->currentIndex() == LineMode;
    const bool wasLoading = m_loading;
    m_loading = true;
    for (QAbstractSpinBox *box : {static_cast<QAbstractSpinBox *>(ui->fangxiang_Box),
                                  static_cast<QAbstractSpinBox *>(ui->jianju_Box),
                                  static_cast<QAbstractSpinBox *>(ui->saomiao_Box)}) {
        if (lineMode || box->isReadOnly())
            setBlank(box, lineMode);
    }
    if (!lineMode) {
        // Out of line mode: show the record's values again.
        showValue(ui->fangxiang_Box, m_layer->fangxiang);
        showValue(ui->jianju_Box, m_layer->jianju);
        showValue(ui->saomiao_Box, m_layer->saomiao);
    }
    m_loading = wasLoading;
}
