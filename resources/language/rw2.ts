<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>整列</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>左揃え</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>左右中央揃え</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>右揃え</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>上揃え</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>上下中央揃え</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>下揃え</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>作業エリアの中央</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>水平方向に等間隔</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>垂直方向に等間隔</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>配列</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>矩形配列</translation>
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
        <translation>列間隔 (mm)：</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>行間隔 (mm)：</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>円形配列</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>個数：</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>中心 X (mm)：</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>中心 Y (mm)：</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>角度範囲 (°)：</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>コピーを回転</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QRコード / バーコード</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QRコード / バーコード</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>種類：</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QRコード</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>内容：</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>幅：</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>バーの高さ：</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>クワイエットゾーン：</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> モジュール</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>誤り訂正レベル：</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>テキストを表示</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>コードを生成できません: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>先に設定画面でカメラを校正してください。</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>カメラ校正</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>ボードが応答しません。WiFi接続を確認してください。</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>マシンの動作中は使用できません。</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>カメラはWiFi接続時のみ使用できます。</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>撮影をキャンセル</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>このまま撮影</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>ロータリーモードでの撮影はおすすめしません。</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>レーザーヘッドを移動中...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>写真を取得中...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>写真の取得に失敗しました。再試行中（%1 回目）: %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>撮影をキャンセルしました</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>現在の写真を閉じますか？</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>写真を取得しました</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>校正データが無効です。カメラを再校正してください。</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>カメラを校正しますか？</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>加工中のため、現在は使用できません。</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>校正データの保存に失敗しました: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>云</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>ボードを検索</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>見つかったボード：</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>再検索</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>ボードを検索中...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>検索が完了しました。</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>ボードが見つかりません</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>先にボードを選択してください</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>レイヤーの変更</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>レイヤー設定の変更</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>レイヤーの移動</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>レイヤーの削除</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>新規ページ</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>ページ %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>ページ名の変更</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>ページ名：</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>ページを閉じると、その中の図形がすべて削除されます。続行しますか？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>DXF図面が複雑すぎます</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>DXFファイルが大きすぎます</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>DXFファイルが空です</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>DXFファイルが破損しています</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>整列</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>等間隔に配置</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>配列</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>グループ解除</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>テキストの編集</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>焊接</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修剪</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>相交</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>排除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>偏移</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>時計回りに90°回転</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>反時計回りに90°回転</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>グループ解除</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>移動...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>配列</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>五角形</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>六角形</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>星形</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>曲線</translation>
    </message>
    <message>
        <source>节点</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Gコードを保存</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>Gコード (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>保存に失敗しました。</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>実行前にロータリー画面で設定を確認してください。</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Gコードの生成に失敗しました。</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>レイヤー %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…他 %1 件</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 個の図形が作業エリア (%2 × %3 mm) の外にあります。マシンがリミットに当たったり、作業台の外を焼いたりするおそれがあります:
%4

続行しますか？</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>ヘッドの位置が不明です。先にマシンを接続してください。</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1：%2 バイト/秒が必要、最大 %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>シリアル接続は毎秒 %1 バイトしか送れません。この速度ではラスターデータが間に合いません：</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>減速</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>このまま実行</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>余额：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>充值</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished">お知らせ</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>焊接</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修剪</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>相交</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>排除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>ロータリー</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>ロータリー設定</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>ロータリーモード：</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>円周</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>回転軸：</translation>
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
        <translation>円周 (mm)：</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>直径 (mm)：</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>1回転あたりの移動量：</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
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
        <translation>設定の変更に失敗しました</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>前のファイルをまだアップロード中です</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>ファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>アップロードをキャンセルしました</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>アップロードに失敗しました: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>先にビットマップを1つ選択してください。</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>ビットマップにトレースできる輪郭がありません。</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>カメラ校正</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>刻印が終わったら「次へ」を押して撮影し、写真上の4つの十字の中心を順にクリックしてください</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1/%2 点を選択済み</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>密码：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>注册</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>DXFファイルを読み込めません</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>DXFの座標が範囲外です</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>DXFファイルにインポートできる図形がありません</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>ロータリー設定が無効です</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>ヘッドの位置が不明です</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>テキスト設定</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>テキストを入力</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>フォント：</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>サイズ (mm)：</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>文字間隔 (mm)：</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>行間隔 (mm)：</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>予想時間：</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Gコード行数：</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>加工距離：</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>空走距離：</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>加速とコーナー減速を含む。送り速度のみ：%1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>暂停</source>
        <translation type="unfinished">一時停止</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>マシンでアラームが発生しました。</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>先にマシンを接続してください。</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>マシンの動作中は使用できません。</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>テスト照射</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IPアドレスを入力してください。</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>加工中のため、現在は使用できません。</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>ファイル (*.nc);;ファイル (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>シリアルポートを選択または入力してください。</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>シリアルポート %1 を開けません: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>シリアルポート %1 のデバイスがGRBLコントローラーとして応答しませんでした。</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>シリアルポート %1 の接続中にエラーが発生しました: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>シリアルポート %1 に接続しました</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>WiFiで %1 に接続しました</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WiFi接続を切断しました</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>WiFi接続が切れました。</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>ヘッドの位置が不明です。マシンから位置が届くまでお待ちください。</translation>
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
        <translation>接続</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>ホーミング</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>原点へ移動</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>原点を設定</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>原点をクリア</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>指定位置へ</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>ファイル実行</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>テスト照射</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>開始位置</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>ジョブを開始する位置</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>絶対座標</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>現在位置</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>ユーザー原点</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>デザインのどの点を開始位置に合わせるか</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>上中央</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>左中央</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>右中央</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>下中央</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>右下</translation>
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
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>モードプレビュー</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>モード：</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>ディザ</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>ネガ</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>X(mm)：</source>
        <translation>X (mm)：</translation>
    </message>
    <message>
        <source>Y(mm)：</source>
        <translation>Y (mm)：</translation>
    </message>
    <message>
        <source>宽(mm)：</source>
        <translation>幅 (mm)：</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>高さ (mm)：</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>回転 (°)：</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>縦横比を固定</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向外</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向内</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>圆角</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>尖角</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>方角</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>画像が大きすぎて開けません。</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>画像を読み込めません。</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>有効なJSONではありません: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>パラメーターライブラリのファイルではありません</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>このライブラリのバージョンには対応していません</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>項目 %1: %2 が無効です</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>ファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>ファイルを読み込めません: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>パラメーターライブラリ</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>素材：</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>名前：</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>厚さ：</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>レイヤーから追加</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>レイヤーに適用</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>パラメーターライブラリ (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>パラメーターライブラリを読み込めません: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>先にレイヤーを選択してください</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>名前を入力してください</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>同じ名前のプリセットがあります。置き換えますか？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>先にプリセットを選択してください</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>同じ名前のプリセットがあります</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>インポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>プリセットを%1件追加、%2件置き換えました</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>エクスポートに失敗しました: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>写真の透明度</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>写真を隠す</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>パラメーターライブラリ</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>素材テストカード</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>パラメーターライブラリを読み込めません: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>パラメーターライブラリに保存しました: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>加工中のため、現在は使用できません。</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>保存するデータがありません。</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>ファイル (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>画像 (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>保存に失敗しました: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>ファイルが存在しません: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>サポートされていないファイル形式: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>ファイルをインポートできません。使用できる図形がありません: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>ファイルを開けません: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>ファイルが破損しているか、プロジェクトファイルではないため開けません: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>ファイルが破損しているため、完全な部分のみ開きました: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>最近使ったファイル</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>リストをクリア</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>继续</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>SDカードのファイル</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>ボード：</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>総容量：</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>使用済み：</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>空き：</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>アップロードするファイルを選択</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>Gコードファイル (*.nc *.gcode *.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 はすでにカードにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>%1 を削除しますか？</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>%1 を実行しますか？</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>カードのファイル一覧を読み込めませんでした</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>ファイルの削除に失敗しました</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>ファイルの実行に失敗しました</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>ファイルのアップロードに失敗しました</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>标题：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>价格：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择</source>
        <translation type="unfinished">選択</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>分类：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>材料：</source>
        <translation type="unfinished">素材：</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>详情：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上传</source>
        <translation type="unfinished">アップロード</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>购买</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>打开</source>
        <translation type="unfinished">開く</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation type="unfinished">OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished">お知らせ</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>SVGファイルの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>SVGファイルの形式が正しくありません</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>SVGファイルが空です</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>SVGファイルの図形が多すぎます</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>SVGファイルが大きすぎます</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>行数と列数は1以上にしてください</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>パワーは0～100の範囲で指定してください</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>速度は5以上にしてください</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>サイズまたはパス数が無効です</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>素材テストカード</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>パワー (%)：</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>速度 (mm/min)：</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>行 × 列：</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>四角形 / 間隔：</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>モード / パス数：</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>ライン</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>生成</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>最適な四角形</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>最適な行 / 列：</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>素材 / 厚さ：</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>ライブラリに保存</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1個の四角形がレイヤー%2個を超えるため、%3ページに分けます</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>四角形%1個、1ページ</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>素材を入力してください</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>ライン</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>クロス塗りつぶし</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>ディザ</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>ネガ</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>ネガ</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>レイヤーを上へ</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>レイヤーを下へ</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>レイヤー設定</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>モード：</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>名前：</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>塗りつぶし角度 (°)：</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>塗りつぶし間隔 (mm)：</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>オーバースキャン (mm)：</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>速度 (mm/min)：</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>パワー (%)：</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>パス数</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>単方向</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>优化</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi設定</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>ボードのネットワーク情報</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>モード：</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>ネットワーク名：</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IPアドレス：</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>ルーターに接続 (STAモード)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>WiFi名：</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>WiFiパスワード：</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>ボードのアクセスポイント (APモード)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>ボードのアドレス 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>APモードに切り替え</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>STAモード (ルーター接続)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>APモード (アクセスポイント)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>ネットワーク名とパスワードを入力してください。</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>パスワードは8～90文字にしてください</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>名前とパスワードに !、?、~、$ は使用できません</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>半角英数字と記号のみ入力できます</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Gコードを保存</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>ロータリー</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>回転角度：</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>プレビューする図形がありません。</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>先にマシンを接続してください。</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>加工中のため、現在は使用できません。</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>新規ページ</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>画像モードのプレビュー</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>ビットマップをトレース</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>マシン</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>デザインが保存されていません。今すぐ終了しますか？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>路径运算</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>先にシリアル接続を切断してください。</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IPアドレスを入力してください。</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>無効なポート: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>WiFiで %1:%2 に接続できません。アドレスとボードの電源を確認してください。</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>先にマシンを接続してください。</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>%1 をアップロード中 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>%1 をアップロード中: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>アップロードに失敗しました: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>接続済み</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi設定</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>SDカードのファイル</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>ボードを検索</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>先にマシンを接続してください。</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IPアドレスを入力してください。</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>分类：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>材料：</source>
        <translation type="unfinished">素材：</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>机型：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>功率：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>标签：</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>上一页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>下一页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>全部</source>
        <translation type="unfinished">すべて</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>サイズは0より大きくしてください。</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>内容を入力してください。</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>バーコードライブラリを使用できません。</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13には12桁または13桁の数字が必要です。</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-Aには11桁または12桁の数字が必要です。</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>後で再起動</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>言語を変更しました。ソフトウェアを再起動してください。</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
</context>
</TS>
