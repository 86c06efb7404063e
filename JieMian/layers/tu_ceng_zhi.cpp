#include "tu_ceng_zhi.h"

#include "tu_ceng.h"
#include "ui_tu_ceng_zhi.h"

namespace {
void setBlank(QAbstractSpinBox *box, bool blank)
{
    box->setReadOnly(blank);
    // A blank box must not take focus: losing it would write the number back.
    box->setFocusPolicy(blank ? Qt::NoFocus : Qt::WheelFocus);
    if (blank)
        box->clear();
}
} // namespace

template<typename Box, typename Value> void Tu_Ceng_Zhi::bind(Box *box, Value TuCeng::*field)
{
    connect(box, QOverload<Value>::of(&Box::valueChanged), this, [this, box, field](Value v) {
        if (m_loading || !m_layer || box->isReadOnly())
            return;
        m_layer->*field = v;
        edited();
    });
}

Tu_Ceng_Zhi::Tu_Ceng_Zhi(QWidget *parent) : QWidget(parent), ui(new Ui::Tu_Ceng_Zhi)
{
    ui->setupUi(this);
    bind(ui->fangxiang_Box, &TuCeng::fangxiang);
    bind(ui->jianju_Box, &TuCeng::jianju);
    bind(ui->saomiao_Box, &TuCeng::saomiao);
    bind(ui->sudu_Box, &TuCeng::sudu);
    bind(ui->gonglv_Box, &TuCeng::gonglv);
    bind(ui->cishu_Box, &TuCeng::cishu);
    connect(ui->moshi_Box, QOverload<int>::of(&QComboBox::activated), this,
            &Tu_Ceng_Zhi::onModeActivated);
    connect(ui->mingcheng_Edit, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (!m_layer)
            return;
        m_layer->mingcheng = text;
        edited();
    });
    const auto bindCheck = [this](QCheckBox *box, bool TuCeng::*field) {
        connect(box, &QCheckBox::toggled, this, [this, field](bool on) {
            if (m_loading || !m_layer)
                return;
            m_layer->*field = on;
            edited();
        });
    };
    bindCheck(ui->shuchu_Box, &TuCeng::shuchu);
    bindCheck(ui->xianshi_Box, &TuCeng::xianshi);
    bindCheck(ui->danxaing_Box, &TuCeng::danxiang);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, [this] {
        emit confirmed();
        if (isWindow())
            hide();
    });
    setLayer(nullptr);
}

Tu_Ceng_Zhi::~Tu_Ceng_Zhi()
{
    delete ui;
}

void Tu_Ceng_Zhi::setLayer(TuCeng *layer)
{
    m_layer = layer;
    setEnabled(layer != nullptr);
    if (!layer)
        return;
    m_key = LayerKey{layer->yanse, layer->tupian};
    m_loading = true;
    ui->moshi_Box->clear();
    ui->moshi_Box->addItems(modeLabelsForPanel(layer->tupian));
    ui->mingcheng_Edit->setText(layer->mingcheng);
    ui->moshi_Box->setCurrentIndex(layer->moshi);
    onModeActivated(layer->moshi); // dependent widgets follow the mode
    ui->fangxiang_Box->setValue(layer->fangxiang);
    ui->jianju_Box->setValue(layer->jianju);
    ui->saomiao_Box->setValue(layer->saomiao);
    ui->cishu_Box->setValue(layer->cishu);
    ui->danxaing_Box->setChecked(layer->danxiang);
    ui->sudu_Box->setValue(layer->sudu);
    ui->gonglv_Box->setValue(layer->gonglv);
    ui->shuchu_Box->setChecked(layer->shuchu);
    ui->xianshi_Box->setChecked(layer->xianshi);
    updateFillFields();
    m_loading = false;
}

void Tu_Ceng_Zhi::onModeActivated(int index)
{
    if (!m_layer)
        return;
    const bool changed = m_layer->moshi != index;
    m_layer->moshi = index;
    updateFillFields();
    if (changed && !m_loading)
        edited();
}

void Tu_Ceng_Zhi::updateFillFields()
{
    const bool lineMode = !m_layer->tupian && m_layer->moshi == LineMode;
    if (!lineMode) {
        // Coming out of line mode: show the record's values again.
        const bool wasLoading = m_loading;
        m_loading = true;
        setBlank(ui->fangxiang_Box, false);
        setBlank(ui->jianju_Box, false);
        setBlank(ui->saomiao_Box, false);
        ui->fangxiang_Box->setValue(m_layer->fangxiang);
        ui->jianju_Box->setValue(m_layer->jianju);
        ui->saomiao_Box->setValue(m_layer->saomiao);
        m_loading = wasLoading;
        return;
    }
    setBlank(ui->fangxiang_Box, true);
    setBlank(ui->jianju_Box, true);
    setBlank(ui->saomiao_Box, true);
}

void Tu_Ceng_Zhi::edited()
{
    emit layerChanged(m_layer);
}
