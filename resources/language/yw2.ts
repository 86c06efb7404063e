<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Align</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Align left</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Center horizontally</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Align right</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Align top</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Center vertically</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Align bottom</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Center in work area</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Distribute horizontally</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Distribute vertically</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>Array</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>Rectangular array</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Rows:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Columns:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Column spacing (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Row spacing (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Circular array</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Count:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>Center X (mm):</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>Center Y (mm):</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>Angle range (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Rotate copies</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / barcode</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / barcode</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR code</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Content:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Bar height:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Quiet zone:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> modules</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Error correction:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Show text</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Cannot make the code: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Calibrate the camera in the settings first!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrate camera</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Take photo</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>The board does not answer. Check the WiFi link!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Not available while the machine is running!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>The camera works only over WiFi!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Cancel photo</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Take it anyway</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>Taking a photo in rotary mode is not recommended!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Moving the laser head...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Fetching the photo...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Fetching the photo failed, trying again (attempt %1): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Photo cancelled</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Close the current photo?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Photo received</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>The calibration is not valid. Calibrate the camera again!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Calibrate the camera?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>The machine is engraving; not available for now!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Saving the calibration failed: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Log in</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>My account</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Design store</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Upload design</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Cloud</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Please log in first</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Search for boards</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Boards found:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Searching for boards...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Search finished!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>No board found</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Choose a board first</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Change layer</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Change layer settings</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Move layer</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Delete layer</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>New page</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Rename page</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Page name:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Closing the page deletes all its shapes. Continue?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>The DXF drawing is too complex</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Cannot open the file</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>The DXF file is too large</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>The DXF file is empty</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>The DXF file is damaged</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>Binary DXF files are not supported</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Align</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Distribute evenly</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Array</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Move node</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Move control point</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Add node</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Delete node</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Convert to line</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Convert to curve</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Break node</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Join nodes</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Weld</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtract</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersect</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Exclude</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Offset</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Mirror horizontally</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Mirror vertically</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Rotate 90° clockwise</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Rotate 90° counterclockwise</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Move...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Array</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Triangle</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>Pentagon</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Hexagon</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Star</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Node</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Save G-code</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Saving failed!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Check the settings in the Rotary dialog before running!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Generating G-code failed!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Layer %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…and %1 more</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 shape(s) lie outside the work area (%2 × %3 mm); the machine may hit its limits or burn beyond the bed:
%4

Continue?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>The head position is unknown. Connect the machine first!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: needs %2 bytes/s, at most %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>The serial link carries only %1 bytes per second; at this speed the raster data cannot keep up:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Slow down</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Run anyway</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>My account</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Email:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Balance:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Top-up amount:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Top up</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Preset name:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Save presets</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Log out</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Request failed</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Enter a preset name</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Saved</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>What&apos;s new</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Update now</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Download complete</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Quit later</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Quit now</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Quit the program to install the update.</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>Offset...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Weld</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtract</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersect</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Exclude</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Subtract the other shapes from the bottom shape</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>Rotary</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>Rotary settings</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Rotary mode:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Circumference</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diameter</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Rotation axis:</translation>
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
        <translation>Circumference (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Diameter (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Travel per revolution:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>HttpThread</name>
    <message>
        <source>参数更改失败</source>
        <translation>Changing the setting failed</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>The previous file is still uploading</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Cannot read the file: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Upload cancelled</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Upload failed: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Select one bitmap first!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>The bitmap has no outline to trace!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Colors to layers</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>Put each color on its own layer when importing</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrate camera</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>When the marks are burnt, press &quot;Next&quot; to take a photo, then click the centres of the four crosses on it</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 of %2 points chosen</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Log in</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Email:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Get code</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Log in with code</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Remember password</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Sign up</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Confirm password:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Forgot password</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>New password:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Request failed</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Enter your email</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>The code has been sent</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Enter your email and the code</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Enter your email and password</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Please fill in all fields</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>The passwords do not match</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Signed up</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Password changed. Please log in!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Cannot open the file</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>The DXF file cannot be read</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>DXF coordinates are out of range</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>The DXF file contains no shapes to import</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Invalid rotary settings</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>The head position is unknown</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>Text settings</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Enter text</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Font:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Size (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Letter spacing (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Row spacing (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Estimated time:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>G-code lines:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Burn length:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Travel length:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>With acceleration and corner slow-downs; at the feed alone: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(%1 saved)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>The optimized cut order travels %1 less than the drawing order</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>The machine&apos;s settings have not been read yet: estimated with the controller&apos;s factory settings; more accurate once a machine is connected</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>%1 left</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>The machine raised an alarm!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connect the machine first!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Not available while the machine is running!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Test fire</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>The IP address cannot be empty!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>The machine is engraving; not available for now!</translation>
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
        <translation>Choose or type a serial port!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Cannot open serial port %1: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>The device on serial port %1 did not answer as a GRBL controller!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Serial port %1 failed while connecting: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Connected to serial port %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Connected over WiFi to %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WiFi link closed</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>The WiFi link was lost!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>The head position is unknown. Wait for the machine to report it!</translation>
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
        <translation>Connect</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Go to origin</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Set origin</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Clear origin</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Move to</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Run file</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Test fire</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Where the job starts</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Absolute</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Head position</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>User origin</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Which point of the design goes to the start</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Bottom right</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Mode preview</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Black &amp; white</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dither</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negative</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>X(mm)：</source>
        <translation>X (mm):</translation>
    </message>
    <message>
        <source>Y(mm)：</source>
        <translation>Y (mm):</translation>
    </message>
    <message>
        <source>宽(mm)：</source>
        <translation>Width (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Height (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Rotation (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Lock aspect ratio</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Distance (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Outward</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Inward</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Corners:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Sharp</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Keep original</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>The image is too large to open!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>The image cannot be read!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>Not valid JSON: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Not a parameter library file</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>This library version is not supported</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Entry %1: invalid %2</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Cannot write the file: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Cannot read the file: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Parameter library</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Thickness:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Add from layer</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Apply to layer</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Parameter library (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>The parameter library cannot be read: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Choose a layer first</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Enter a name</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>A preset of that name exists. Replace it?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Choose a preset first</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>A preset of that name exists</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Import failed: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 presets added, %2 replaced</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Export failed: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Take photo</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Photo opacity</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Hide photo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Parameter library</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Material test card</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>The parameter library cannot be read: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Saved to the parameter library: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>The machine is engraving; not available for now!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Nothing to save!</translation>
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
        <translation>Saving failed: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>The file does not exist: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Unsupported file type: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>The file cannot be imported; it holds no usable shapes: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Cannot open the file: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>The file is damaged or not a project file and cannot be opened: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>The file is damaged; only its intact part was opened: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Open recent</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Clear list</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Resume job</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Resume from line:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>The controller was reset: home the machine or set the origin again first.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>The job was interrupted. Resume from line %1?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>The job cannot be resumed.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>The machine is engraving; not available for now!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>The connection to the machine was lost: it may have lost power or may still be running. Make sure it has stopped, then home it or set the origin again.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>The job file has been replaced by a new job; it cannot be resumed.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD card files</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Board:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Used:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Free:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Choose a file to upload</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>G-code files (*.nc *.gcode *.txt);;All files (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 is already on the card. Replace it?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>Delete %1?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>Run %1?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Reading the card&apos;s file list failed</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Deleting the file failed</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Running the file failed</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Uploading the file failed</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Upload design</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Price:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Picture:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Category:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Request failed</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Please log in first</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Please fill in all fields</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Uploaded</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Design details</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Buy</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Request failed</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>No design data found</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Please log in first</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Buy this design?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>The purchase failed. Please try again!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Design purchased!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>The SVG file is nested too deeply</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>The SVG file is malformed</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>The SVG file is empty</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>The SVG file has too many shapes</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Cannot open the file</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>The SVG file is too large</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 text object(s) not imported: convert the text to paths in your drawing program, then import again.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Rows and columns must be at least 1</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>Power must be between 0 and 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>Speed must be at least 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Invalid size or passes</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Material test card</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Power (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Speed (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Rows × columns:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Square / gap:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Mode / passes:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Generate</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Best square</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Best row / column:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Material / thickness:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>Save to library</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 squares need more than %2 layers: %3 pages</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 squares, 1 page</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Enter the material</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Cross fill</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Black &amp; white</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dither</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negative</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>Negative</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Move layer up</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Move layer down</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Layer settings</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Fill angle (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Fill interval (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Overscan (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Speed (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Power (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidirectional</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Cut curves with 0.01 mm precision</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Fine curves</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Kerf (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Width of the cut: outer outlines move out and holes move in by half of it each</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Cut order:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>As drawn</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Optimized</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi settings</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Board network</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Network name:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IP address:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Join a router (station mode)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>WiFi name:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>WiFi password:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Board hotspot (access point mode)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Board address 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Switch to access point mode</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Station mode (router)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Access point mode (hotspot)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>The network name and password cannot be empty!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>The password must be 8 to 90 characters long</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>The name and password cannot contain !, ?, ~ or $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Only English letters, digits and symbols are supported</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Save G-code</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Rotary</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Rotation angle:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>View</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Nothing to preview!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connect the machine first!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>The machine is engraving; not available for now!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>New page</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Image mode preview</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Trace bitmap</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>The design is not saved. Quit now?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Tools</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Disconnect the serial link first!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>The IP address cannot be empty!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Invalid port: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>Cannot connect over WiFi to %1:%2. Check the address and that the board is powered!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connect the machine first!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Uploading %1 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Uploading %1: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Upload failed: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>The machine did not start the job: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi settings</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD card files</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Search for boards</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connect the machine first!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>The IP address cannot be empty!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Design store</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Category:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Price:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Machine:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Power:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Request failed</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>The size must be greater than 0!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Enter the content!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>The barcode library is not available!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13 needs 12 or 13 digits!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A needs 11 or 12 digits!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Restart later</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Language changed. Please restart the application!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
</context>
</TS>
