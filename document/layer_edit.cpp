#include "layer_edit.h"

void copyLayerField(TuCeng &to, const TuCeng &from, LayerField field)
{
    switch (field) {
    case LayerField::Mode:
        to.moshi = from.moshi;
        break;
    case LayerField::Output:
        to.shuchu = from.shuchu;
        break;
    case LayerField::Show:
        to.xianshi = from.xianshi;
        break;
    case LayerField::Name:
        to.mingcheng = from.mingcheng;
        break;
    case LayerField::Direction:
        to.fangxiang = from.fangxiang;
        break;
    case LayerField::Spacing:
        to.jianju = from.jianju;
        break;
    case LayerField::Overscan:
        to.saomiao = from.saomiao;
        break;
    case LayerField::Speed:
        to.sudu = from.sudu;
        break;
    case LayerField::Power:
        to.gonglv = from.gonglv;
        break;
    case LayerField::Passes:
        to.cishu = from.cishu;
        break;
    case LayerField::SingleDirection:
        to.danxiang = from.danxiang;
        break;
    case LayerField::FineCurves:
        to.jingxi = from.jingxi;
        break;
    case LayerField::Parameters:
        to.moshi = from.moshi;
        to.fangxiang = from.fangxiang;
        to.jianju = from.jianju;
        to.saomiao = from.saomiao;
        to.danxiang = from.danxiang;
        to.sudu = from.sudu;
        to.gonglv = from.gonglv;
        to.shuchu = from.shuchu;
        to.xianshi = from.xianshi;
        to.cishu = from.cishu;
        break;
    case LayerField::Kerf:
        to.kerf = from.kerf;
        break;
    case LayerField::CutOrder:
        to.cutOrder = from.cutOrder;
        break;
    }
}

bool sameLayerField(const TuCeng &a, const TuCeng &b, LayerField field)
{
    TuCeng probe = a;
    copyLayerField(probe, b, field);
    // Every field the edit can touch, compared exactly.
    return probe.moshi == a.moshi && probe.shuchu == a.shuchu && probe.xianshi == a.xianshi
           && probe.mingcheng == a.mingcheng && probe.fangxiang == a.fangxiang
           && probe.jianju == a.jianju && probe.saomiao == a.saomiao && probe.sudu == a.sudu
           && probe.gonglv == a.gonglv && probe.cishu == a.cishu && probe.danxiang == a.danxiang
           && probe.kerf == a.kerf && probe.cutOrder == a.cutOrder
           && probe.jingxi == a.jingxi;
}
