<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Links ausrichten</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Horizontal zentrieren</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Rechts ausrichten</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Oben ausrichten</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Vertikal zentrieren</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Unten ausrichten</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Im Arbeitsbereich zentrieren</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Horizontal verteilen</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Vertikal verteilen</translation>
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
        <translation>Rechteckiges Array</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Spaltenabstand (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Zeilenabstand (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Kreisförmiges Array</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>Mitte X (mm):</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>Mitte Y (mm):</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>Winkelbereich (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Kopien drehen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR-Code/Barcode</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR-Code/Barcode</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Inhalt:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Balkenhöhe:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Ruhezone:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> Module</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Fehlerkorrektur:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Text anzeigen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Code kann nicht erzeugt werden: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Bitte zuerst die Kamera in den Einstellungen kalibrieren!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Kamera kalibrieren</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Foto aufnehmen</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>Der Controller antwortet nicht. Bitte die WLAN-Verbindung prüfen!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Nicht verfügbar, während die Maschine läuft!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>Die Kamera funktioniert nur über WLAN!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Foto abbrechen</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Trotzdem aufnehmen</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>Fotos im Drehachsen-Modus werden nicht empfohlen!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Laserkopf wird bewegt...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Foto wird abgerufen...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Abrufen des Fotos fehlgeschlagen, neuer Versuch (Versuch %1): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Foto abgebrochen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Aktuelles Foto schließen?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Foto empfangen</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>Die Kalibrierung ist ungültig. Bitte die Kamera neu kalibrieren!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Kamera kalibrieren?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Die Maschine graviert gerade; vorübergehend nicht verfügbar!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Speichern der Kalibrierung fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Mein Konto</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Design-Shop</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Design hochladen</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Cloud</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Bitte zuerst anmelden</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Controller suchen</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Gefundene Controller:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Suche nach Controllern...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Suche abgeschlossen!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>Kein Controller gefunden</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Bitte zuerst einen Controller wählen</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Ebene ändern</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Ebeneneinstellungen ändern</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Ebene verschieben</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Ebene löschen</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Seite umbenennen</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Seitenname:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Beim Schließen der Seite werden alle ihre Objekte gelöscht. Fortfahren?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>Die DXF-Zeichnung ist zu komplex</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>Die DXF-Datei ist zu groß</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>Die DXF-Datei ist leer</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>Die DXF-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>Binäre DXF-Dateien werden nicht unterstützt</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Array</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Knoten verschieben</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Steuerpunkt verschieben</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Knoten löschen</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>In Linie umwandeln</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>In Kurve umwandeln</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Knoten trennen</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Knoten verbinden</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Verschweißen</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Schnittmenge</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Ausschließen</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Versatz</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>90° im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>90° gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Verschieben...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Array</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>Fünfeck</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Sechseck</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>G-Code speichern</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-Code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Speichern fehlgeschlagen!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Bitte vor dem Start die Einstellungen im Drehachsen-Dialog prüfen!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>G-Code-Erzeugung fehlgeschlagen!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Ebene %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…und %1 weitere</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 Objekt(e) liegen außerhalb des Arbeitsbereichs (%2 × %3 mm); die Maschine kann an die Endschalter fahren oder außerhalb der Arbeitsfläche brennen:
%4

Fortfahren?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>Die Kopfposition ist unbekannt. Bitte zuerst die Maschine verbinden!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: braucht %2 Byte/s, höchstens %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>Die serielle Verbindung überträgt nur %1 Byte/s; bei dieser Geschwindigkeit reicht das für die Rasterdaten nicht:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Trotzdem starten</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Mein Konto</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Guthaben:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Aufladebetrag:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Aufladen</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Voreinstellungsname:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Voreinstellungen speichern</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Anfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Bitte einen Namen für die Voreinstellungen eingeben</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Gespeichert</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Download abgeschlossen</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Später beenden</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Jetzt beenden</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Zum Installieren des Updates bitte das Programm beenden.</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>Versatz...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Verschweißen</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Schnittmenge</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Ausschließen</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Die übrigen Objekte vom untersten Objekt abziehen</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>Drehachse</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>Drehachsen-Einstellungen</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Drehachsen-Modus:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Umfang</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Achse:</translation>
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
        <translation>Umfang (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Durchmesser (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Weg pro Umdrehung:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
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
        <translation>Ändern der Einstellung fehlgeschlagen</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>Die vorherige Datei wird noch hochgeladen</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Hochladen abgebrochen</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Hochladen fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Bitte zuerst eine Bitmap auswählen!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>Die Bitmap enthält keine Konturen zum Vektorisieren!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Farben als Ebenen</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>Beim Import jede Farbe auf eine eigene Ebene legen</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Kamera kalibrieren</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Wenn die Markierungen graviert sind, auf „Weiter“ klicken, um ein Foto aufzunehmen, dann nacheinander die Mitten der vier Kreuze darauf anklicken</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 von %2 Punkten gewählt</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Code anfordern</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Mit Code anmelden</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Passwort merken</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Passwort bestätigen:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Passwort vergessen</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Neues Passwort:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Anfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Bitte E-Mail-Adresse eingeben</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Code wurde gesendet</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Bitte E-Mail-Adresse und Code eingeben</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Bitte E-Mail-Adresse und Passwort eingeben</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Bitte alle Felder ausfüllen</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Registrierung erfolgreich</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Passwort geändert. Bitte anmelden!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>Die DXF-Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>DXF-Koordinaten außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>Die DXF-Datei enthält keine importierbaren Objekte</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Ungültige Drehachsen-Einstellungen</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>Die Kopfposition ist unbekannt</translation>
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
        <translation>Texteinstellungen</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Text eingeben</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Schriftart:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Größe (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Zeichenabstand (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Zeilenabstand (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Geschätzte Zeit:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>G-Code-Zeilen:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Gravurweg:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Leerweg:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>Mit Beschleunigung und Eckenbremsung; nur nach Vorschub: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(spart %1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>Die optimierte Schnittfolge spart %1 Leerweg gegenüber der Zeichenreihenfolge</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>Die Maschine hat ihre Einstellungen noch nicht gemeldet: geschätzt mit den Werkseinstellungen der Steuerung; mit verbundener Maschine genauer</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Noch %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Verbinden</translation>
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
        <translation>Die Maschine hat einen Alarm ausgelöst!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Bitte zuerst die Maschine verbinden!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Nicht verfügbar, während die Maschine läuft!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Testschuss</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>Die IP-Adresse darf nicht leer sein!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Die Maschine graviert gerade; vorübergehend nicht verfügbar!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Dateien (*.nc);;Dateien (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>Bitte einen seriellen Port wählen oder eingeben!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Serieller Port %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>Das Gerät an seriellem Port %1 hat nicht als GRBL-Controller geantwortet!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Fehler an seriellem Port %1 beim Verbinden: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Verbunden mit seriellem Port %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Über WLAN verbunden mit %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WLAN-Verbindung getrennt</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>WLAN-Verbindung unerwartet verloren!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>Die Kopfposition ist unbekannt. Bitte warten, bis die Maschine sie meldet!</translation>
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
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Referenzfahrt</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Zum Nullpunkt</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Nullpunkt setzen</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Nullpunkt löschen</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Fahren zu</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Datei starten</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Testschuss</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Startpunkt</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Wo der Auftrag beginnt</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Absolut</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Aktuelle Position</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Benutzer-Nullpunkt</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Welcher Punkt des Designs auf den Startpunkt kommt</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Unten rechts</translation>
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
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Modusvorschau</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Verschieben</translation>
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
        <translation>Breite (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Höhe (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Drehung (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Seitenverhältnis sperren</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Abstand (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Nach außen</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Nach innen</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Ecken:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Spitz</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Original behalten</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>Das Bild ist zu groß zum Öffnen!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>Das Bild kann nicht gelesen werden!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>Kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Keine Parameterbibliotheksdatei</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Diese Bibliotheksversion wird nicht unterstützt</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Eintrag %1: %2 ungültig</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Datei kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Parameterbibliothek</translation>
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
        <translation>Dicke:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Aus Ebene hinzufügen</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Auf Ebene anwenden</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Parameterbibliothek (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Die Parameterbibliothek kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Bitte zuerst eine Ebene wählen</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Eine Voreinstellung mit diesem Namen existiert bereits. Ersetzen?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Bitte zuerst eine Voreinstellung wählen</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Eine Voreinstellung mit diesem Namen existiert bereits</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Import fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 Voreinstellungen hinzugefügt, %2 ersetzt</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Foto aufnehmen</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Foto-Deckkraft</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Foto ausblenden</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Parameterbibliothek</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Materialtestkarte</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Die Parameterbibliothek kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>In der Parameterbibliothek gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Die Maschine graviert gerade; vorübergehend nicht verfügbar!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Nichts zu speichern!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Dateien (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Bilder (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Speichern fehlgeschlagen: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Die Datei existiert nicht: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Nicht unterstütztes Dateiformat: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>Die Datei kann nicht importiert werden; sie enthält keine verwendbaren Objekte: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>Die Datei ist beschädigt oder keine Projektdatei und kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>Die Datei ist beschädigt; nur der intakte Teil wurde geöffnet: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Liste leeren</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Auftrag fortsetzen</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Fortsetzen ab Zeile:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>Der Controller wurde zurückgesetzt: bitte zuerst eine Referenzfahrt ausführen oder den Nullpunkt neu setzen.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Der Auftrag wurde unterbrochen. Ab Zeile %1 fortsetzen?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>Der Auftrag kann nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Die Maschine graviert gerade; vorübergehend nicht verfügbar!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>Die Verbindung zur Maschine ist getrennt: Sie hat vielleicht keinen Strom mehr oder arbeitet noch. Prüfen Sie zuerst, dass sie steht, und referenzieren Sie sie dann oder setzen Sie den Nullpunkt neu.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>Die Auftragsdatei wurde durch einen neuen Auftrag ersetzt; Fortsetzen nicht möglich.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD-Karten-Dateien</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Controller:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Gesamt:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Belegt:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Frei:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Datei zum Hochladen wählen</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>G-Code-Dateien (*.nc *.gcode *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 ist bereits auf der Karte. Ersetzen?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>%1 löschen?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>%1 starten?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Lesen der Dateiliste der Karte fehlgeschlagen</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Löschen der Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Starten der Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Hochladen der Datei fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Design hochladen</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Preis:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Bild:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Kategorie:</translation>
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
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Anfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Bitte zuerst anmelden</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Bitte alle Felder ausfüllen</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Hochgeladen</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Design-Details</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Kaufen</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Anfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>Keine Designdaten gefunden</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Bitte zuerst anmelden</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Dieses Design kaufen?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>Der Kauf ist fehlgeschlagen. Bitte erneut versuchen!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Design gekauft!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>Die SVG-Datei ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>Die SVG-Datei ist fehlerhaft</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>Die SVG-Datei ist leer</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>Die SVG-Datei enthält zu viele Objekte</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>Die SVG-Datei ist zu groß</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 Text(e) nicht importiert: bitte Texte im Zeichenprogramm in Pfade umwandeln und erneut importieren.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Zeilen und Spalten müssen mindestens 1 sein</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>Die Leistung muss zwischen 0 und 100 liegen</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>Die Geschwindigkeit muss mindestens 5 sein</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Ungültige Größe oder Durchgänge</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Materialtestkarte</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Leistung (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Geschw. (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Zeilen × Spalten:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Quadrat / Abstand:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Modus / Durchgänge:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Bestes Quadrat</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Beste Zeile / Spalte:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Material / Dicke:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>In Bibliothek speichern</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 Quadrate brauchen mehr als %2 Ebenen: %3 Seiten</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 Quadrate, 1 Seite</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Bitte das Material eingeben</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Kreuzfüllung</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>Negativ</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Ebene nach oben</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Ebene nach unten</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Ebeneneinstellungen</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Füllwinkel (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Linienabstand (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Overscan (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Geschw. (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Leistung (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Durchgänge</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidirektional</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Kurven mit 0,01 mm Genauigkeit schneiden</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Feine Kurven</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Schnittfuge (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Breite des Schnitts: Außenkonturen werden um die Hälfte nach außen, Löcher nach innen versetzt</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Schnittfolge:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Wie gezeichnet</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Optimiert</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>WLAN-Einstellungen</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Controller-Netzwerk</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Netzwerkname:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Mit Router verbinden (STA-Modus)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>WLAN-Name:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>WLAN-Passwort:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Controller-Hotspot (AP-Modus)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Controller-Adresse 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>In AP-Modus wechseln</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>STA-Modus (Router)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>AP-Modus (Hotspot)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>Netzwerkname und Passwort dürfen nicht leer sein!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>Das Passwort muss 8 bis 90 Zeichen lang sein</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>Name und Passwort dürfen kein !, ?, ~ oder $ enthalten</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Nur englische Buchstaben, Ziffern und Symbole werden unterstützt</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>G-Code speichern</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Drehachse</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Drehwinkel:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Keine Objekte für die Vorschau!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Bitte zuerst die Maschine verbinden!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Die Maschine graviert gerade; vorübergehend nicht verfügbar!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Bildmodus-Vorschau</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Bitmap vektorisieren</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>Das Design ist nicht gespeichert. Jetzt beenden?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Bitte zuerst die serielle Verbindung trennen!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>Die IP-Adresse darf nicht leer sein!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Ungültiger Port: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>WLAN-Verbindung zu %1:%2 nicht möglich. Bitte Adresse und Stromversorgung des Controllers prüfen!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Bitte zuerst die Maschine verbinden!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>%1 wird hochgeladen (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>%1 wird hochgeladen: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Hochladen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>Die Maschine hat den Auftrag nicht gestartet: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>WLAN-Einstellungen</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD-Karten-Dateien</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Controller suchen</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Bitte zuerst die Maschine verbinden!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>Die IP-Adresse darf nicht leer sein!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Design-Shop</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Preis:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Maschine:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Leistung:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Anfrage fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>Die Größe muss größer als 0 sein!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Bitte den Inhalt eingeben!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>Die Barcode-Bibliothek ist nicht verfügbar!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13 braucht 12 oder 13 Ziffern!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A braucht 11 oder 12 Ziffern!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Später neu starten</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Sprache geändert. Bitte das Programm neu starten!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
</context>
</TS>
