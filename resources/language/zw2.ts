<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>左对齐</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>水平居中</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>右对齐</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>顶对齐</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>垂直居中</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>底对齐</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>工作区居中</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>水平等距</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>垂直等距</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>阵列</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>矩形阵列</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>行数：</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>列数：</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>列间距(mm)：</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>行间距(mm)：</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>圆形阵列</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>数量：</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>中心X(mm)：</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>中心Y(mm)：</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>角度范围(°)：</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>旋转副本</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>类型：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>内容：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>条高：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>静区：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 模块</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished">确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">取消</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>请先在设置界面校准摄像头!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>校准摄像头</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>拍照</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>设备没有响应,请检查WiFi连接!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>设备运行中禁用此功能!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>使用相机必须要在WiFi模式!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>取消拍照</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>继续拍照</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>滚轴模式不建议拍照!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>正在移动激光头...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>正在获取照片...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>获取照片失败,正在重试(第%1次): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>已取消拍照</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>是否关闭当前拍照</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>照片已获取</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>校准数据无效,请重新校准摄像头!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>是否校准摄像头</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>设备雕刻中,暂时停止使用!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>校准数据保存失败: %1</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>搜索设备</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>找到的设备：</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>重新搜索</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>正在搜索设备...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>搜索完成!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>未找到设备</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>请先选择设备</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>修改图层</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>修改图层参数</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>移动图层</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>删除图层</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>新建页面</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>页面%1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>重命名页面</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>页面名称：</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>关闭页面将删除其中的所有图形,是否继续?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>DXF 图形过于复杂</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>DXF 文件过大</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>DXF 文件为空</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>DXF 文件已损坏</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>等间距分布</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>阵列</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>打散</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>修改文字</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>再制</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>水平镜像</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>垂直镜像</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>顺时针旋转90°</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>逆时针旋转90°</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>打散</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>阵列</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>五边形</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>六边形</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>五角星</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>曲线</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>保存G代码</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G代码 (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>保存失败!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>请在滚轴界面检查相关参数再运行!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>生成G代码失败!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>图层 %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>……还有 %1 个</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>滚轴</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>滚轴设置</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>滚轴模式：</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>周长</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>旋转轴：</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>周长(mm)：</source>
        <translation>周长(mm)：</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>直径(mm)：</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>每圈行程：</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>HttpThread</name>
    <message>
        <source>参数更改失败</source>
        <translation>参数更改失败</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>上一个文件仍在上传</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>无法读取文件: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>上传已取消</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>上传失败: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>请先选择一张位图!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>位图中没有可描摹的轮廓!</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>校准摄像头</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>已选择 %1/%2 个点</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>DXF 文件无法读取</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>DXF 坐标超出范围</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>DXF 文件中没有可导入的图形</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>滚轴参数无效</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>文字设置</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>请输入文字</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>字体：</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>字号(mm)：</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>字间距(mm)：</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>行间距(mm)：</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>预计时间：</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>G代码行数：</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>雕刻长度：</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>空移长度：</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>设备触发警告!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>请先连接设备!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>设备运行中禁用此功能!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>点火</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP不能为空!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>设备雕刻中,暂时停止使用!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Files (*.nc);;Files (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>请选择或输入串口!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>无法打开串口 %1:%2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>串口 %1 上的设备没有作为GRBL控制器应答!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>串口 %1 在连接时出错:%2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>已连接到串口 %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>已通过WiFi连接到 %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WiFi连接已断开</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>WiFi连接意外断开!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MachinePanel</name>
    <message>
        <source>COM:</source>
        <translation>COM:</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>归位</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>回原点</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>设置原点</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>清除原点</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>移动到</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>运行文件</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>走边框</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>点火</translation>
    </message>
    <message>
        <source>起点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左上</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右上</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>中心</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>左下</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>下中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>右下</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>模式预览</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>模式：</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>负向</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>X(mm)：</source>
        <translation>X(mm)：</translation>
    </message>
    <message>
        <source>Y(mm)：</source>
        <translation>Y(mm)：</translation>
    </message>
    <message>
        <source>宽(mm)：</source>
        <translation>宽(mm)：</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>高(mm)：</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>旋转(°)：</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>锁定比例</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>图片太大,无法打开!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>图片无法读取!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>材料：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>名称：</source>
        <translation type="unfinished">名称：</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>重命名</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除</source>
        <translation type="unfinished">删除</translation>
    </message>
    <message>
        <source>导入</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>全部</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished">确定</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished">提示</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>拍照</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>照片透明度</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>隐藏照片</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>设备雕刻中,暂时停止使用!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>没有数据，禁止保存!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Files (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>保存失败: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>文件不存在: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>不支持的文件格式: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>文件无法导入,里面没有可用的图形: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>无法打开文件: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>文件已损坏或不是项目文件,无法打开: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>文件已损坏,只打开了其中完整的部分: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(无)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>清除列表</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD卡文件管理</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>设备：</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>总容量：</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>已用：</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>可用：</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>选择上传文件</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>文件 %1 已存在，是否覆盖?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>确定删除文件 %1 吗?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>确定运行文件 %1 吗?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>读取SD卡文件列表失败</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>删除文件失败</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>运行文件失败</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>上传文件失败</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>SVG 文件嵌套层数过多</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>SVG 文件格式错误</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>SVG 文件为空</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>SVG 文件图形数量过多</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>SVG 文件过大</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation type="unfinished">功率(%)：</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation type="unfinished">速度(mm/min)：</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>线条</source>
        <translation type="unfinished">线条</translation>
    </message>
    <message>
        <source>填充</source>
        <translation type="unfinished">填充</translation>
    </message>
    <message>
        <source>生成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>线条</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>交叉填充</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>负向</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>负像</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>上移图层</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>下移图层</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>图层参数</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>模式：</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>填充方向(°)：</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>填充间距(mm)：</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>过扫描mm)：</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>速度(mm/min)：</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>功率(%)：</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>单向</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi设置</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>设备网络信息</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>模式：</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>网络名称：</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IP地址：</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>连接路由器(STA模式)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>WiFi名称：</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>WiFi密码：</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>设备热点(AP模式)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>设备地址 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>切换到AP模式</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>STA模式(连接路由器)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>AP模式(设备热点)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>密码或账号不能为空!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>密码长度不匹配</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>账号或密码不能包含!,？,~,$符号</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>目前仅支持英文,数字,符号输入</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>保存G代码</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>滚轴</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>旋转角度：</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>没有可预览的图形!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>请先连接设备!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>设备雕刻中,暂时停止使用!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>新建页面</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>图像模式预览</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>描摹位图</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>创作未保存,是否立即退出</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>工具</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>请先断开串口连接!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP不能为空!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>端口号无效: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>请先连接设备!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>正在上传 %1 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>正在上传 %1: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>上传失败: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>已连接</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi设置</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD卡文件管理</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>搜索设备</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>请先连接设备!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP不能为空!</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>稍后重启</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>语言修改成功,请重启软件!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
</context>
</TS>
