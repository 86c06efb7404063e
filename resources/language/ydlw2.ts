<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Allinea</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Allinea a sinistra</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Centra orizzontalmente</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Allinea a destra</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Allinea in alto</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Centra verticalmente</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Allinea in basso</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Centra nell&apos;area di lavoro</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Distribuisci orizzontalmente</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Distribuisci verticalmente</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>Serie rettangolare</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Righe:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Colonne:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Spaziatura colonne (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Spaziatura righe (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Serie circolare</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Numero:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>Centro X (mm):</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>Centro Y (mm):</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>Ampiezza angolo (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Ruota le copie</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / codice a barre</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / codice a barre</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR code</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Contenuto:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Larghezza:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Altezza barre:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Zona di rispetto:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> moduli</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Correzione errori:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Mostra testo</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Impossibile generare il codice: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Calibra prima la fotocamera nelle impostazioni!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibra fotocamera</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Scatta foto</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>La scheda non risponde. Controlla la connessione WiFi!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Non disponibile mentre la macchina è in funzione!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>La fotocamera funziona solo via WiFi!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Annulla foto</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Scatta comunque</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>Scattare foto in modalità rotativa è sconsigliato!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Spostamento della testa laser...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Recupero della foto...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Recupero della foto non riuscito, nuovo tentativo (tentativo %1): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Foto annullata</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Chiudere la foto corrente?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Foto ricevuta</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>La calibrazione non è valida. Calibra di nuovo la fotocamera!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Calibrare la fotocamera?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La macchina sta incidendo; non disponibile al momento!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Salvataggio della calibrazione non riuscito: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Il mio account</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Negozio di design</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Carica design</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Cloud</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Accedi prima</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Cerca schede</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Schede trovate:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Ricerca schede in corso...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Ricerca completata!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>Nessuna scheda trovata</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Seleziona prima una scheda</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Modifica livello</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Modifica parametri livello</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Sposta livello</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Elimina livello</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Nuova pagina</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Rinomina pagina</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Nome pagina:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Chiudendo la pagina verranno eliminate tutte le sue forme. Continuare?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>Il disegno DXF è troppo complesso</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>Il file DXF è troppo grande</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>Il file DXF è vuoto</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>Il file DXF è danneggiato</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>I file DXF binari non sono supportati</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Allinea</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Distribuisci uniformemente</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Raggruppa</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Separa</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Modifica testo</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Sposta nodo</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Sposta punto di controllo</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Aggiungi nodo</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Elimina nodo</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Converti in linea</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Converti in curva</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Dividi nodo</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Unisci nodi</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Salda</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Sottrai</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Interseca</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Escludi</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Specchia orizzontalmente</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Specchia verticalmente</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Ruota di 90° in senso orario</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Ruota di 90° in senso antiorario</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Raggruppa</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Separa</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Sposta...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rettangolo</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellisse</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Triangolo</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>Pentagono</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Esagono</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Stella</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Nodi</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Salva G-code</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Salvataggio non riuscito!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Controlla le impostazioni nella finestra Rotativo prima di avviare!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Generazione del G-code non riuscita!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Livello %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…e altri %1</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 forme sono fuori dall&apos;area di lavoro (%2 × %3 mm); la macchina potrebbe urtare i finecorsa o bruciare oltre il piano:
%4

Continuare?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>La posizione della testa è sconosciuta. Connetti prima la macchina!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: servono %2 byte/s, al massimo %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>La connessione seriale trasmette solo %1 byte al secondo; a questa velocità i dati raster non bastano:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Rallenta</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Avvia comunque</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Il mio account</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Saldo:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Importo ricarica:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Nome modalità:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Salva modalità</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Richiesta non riuscita</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Inserisci il nome della modalità</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvato</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Note di aggiornamento</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Download completato</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Esci più tardi</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Esci ora</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Esci dal programma per installare</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
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
        <translation>Salda</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Sottrai</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Interseca</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Escludi</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Sottrae le altre forme dalla forma più in basso</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>Rotativo</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>Impostazioni rotativo</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Modalità rotativa:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Circonferenza</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diametro</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Asse di rotazione:</translation>
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
        <translation>Circonferenza (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Diametro (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Corsa per giro:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
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
        <translation>Modifica del parametro non riuscita</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>Il file precedente è ancora in caricamento</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Impossibile leggere il file: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Caricamento annullato</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Caricamento non riuscito: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Seleziona prima una bitmap!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>La bitmap non ha contorni da vettorizzare!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Un livello per colore</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>All&apos;importazione ogni colore va in un livello separato</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibra fotocamera</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Quando i segni sono incisi, premi &quot;Avanti&quot; per scattare una foto, poi fai clic in ordine sui centri delle quattro croci</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 di %2 punti selezionati</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Codice di verifica:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Ottieni codice</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Accedi con codice</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Ricorda password</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Registrati</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Nickname:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Conferma password:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Password dimenticata</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Nuova password:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Richiesta non riuscita</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Inserisci l&apos;e-mail</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Codice di verifica inviato</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Inserisci e-mail e codice di verifica</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Inserisci e-mail e password</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Compila tutti i campi</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>Le password non coincidono</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Registrazione completata</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Password modificata, ora accedi!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>Impossibile leggere il file DXF</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>Coordinate DXF fuori intervallo</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>Il file DXF non contiene forme da importare</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Parametri rotativo non validi</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>La posizione della testa è sconosciuta</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>Impostazioni testo</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Inserisci il testo</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Carattere:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Dimensione (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Grassetto</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Corsivo</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Spaziatura lettere (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Interlinea (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Tempo stimato:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Righe G-code:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Percorso incisione:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Percorso a vuoto:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>Con accelerazione e rallentamento agli angoli; solo a velocità: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(risparmio %1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>L&apos;ordine di taglio ottimizzato riduce il percorso a vuoto di %1 rispetto all&apos;ordine di disegno</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>Impostazioni della macchina non ancora lette: stima con le impostazioni di fabbrica del controller; più precisa con la macchina collegata</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Mancano %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>La macchina ha generato un allarme!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connetti prima la macchina!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Non disponibile mentre la macchina è in funzione!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Test laser</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;indirizzo IP non può essere vuoto!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La macchina sta incidendo; non disponibile al momento!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>File (*.nc);;File (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>Seleziona o inserisci una porta seriale!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Impossibile aprire la porta seriale %1: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>Il dispositivo sulla porta seriale %1 non ha risposto come controller GRBL!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Errore della porta seriale %1 durante la connessione: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Connesso alla porta seriale %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Connesso via WiFi a %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>Connessione WiFi chiusa</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>Connessione WiFi persa!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>La posizione della testa è sconosciuta. Attendi che la macchina la comunichi!</translation>
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
        <translation>Connetti</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Homing</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Vai all&apos;origine</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Imposta origine</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Cancella origine</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Sposta a</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Esegui file</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Cornice</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Test laser</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Partenza</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Da dove inizia il lavoro</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Coordinate assolute</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Posizione attuale</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Origine utente</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Quale punto del disegno va sul punto di partenza</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>In basso</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>In basso a destra</translation>
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
        <translation>Avviso</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Anteprima modalità</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modalità:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Scala di grigi</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Sposta</translation>
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
        <translation>Larghezza (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Altezza (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Rotazione (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Blocca proporzioni</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
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
        <translation>Distanza (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Esterno</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Interno</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Angoli:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Arrotondati</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Vivi</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Squadrati</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Mantieni originale</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>L&apos;immagine è troppo grande per essere aperta!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>Impossibile leggere l&apos;immagine!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>JSON non valido: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Non è un file di libreria parametri</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Versione della libreria non supportata</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Voce %1: valore non valido per %2</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Impossibile scrivere il file: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Impossibile leggere il file: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Libreria parametri</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Materiale:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Spessore:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Aggiungi dal livello</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Applica al livello</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Libreria parametri (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Impossibile leggere la libreria parametri: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Seleziona prima un livello</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Inserisci un nome</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Esiste già un preset con questo nome. Sostituirlo?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Seleziona prima un preset</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Esiste già un preset con questo nome</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Importazione non riuscita: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 preset aggiunti, %2 sostituiti</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Esportazione non riuscita: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Scatta foto</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Opacità foto</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Nascondi foto</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Libreria parametri</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Scheda test materiale</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Impossibile leggere la libreria parametri: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Salvato nella libreria parametri: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La macchina sta incidendo; non disponibile al momento!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Niente da salvare!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>File (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Immagini (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Salvataggio non riuscito: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Il file non esiste: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Formato file non supportato: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>Impossibile importare il file; non contiene forme utilizzabili: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>Il file è danneggiato o non è un file di progetto e non può essere aperto: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>Il file è danneggiato; è stata aperta solo la parte integra: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Apri recenti</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(nessuno)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Cancella elenco</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Riprendi lavoro</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Riprendi dalla riga:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>Il controller si è resettato: esegui prima l&apos;homing o reimposta l&apos;origine.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Lavoro interrotto. Riprendere dalla riga %1?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>Impossibile riprendere il lavoro.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La macchina sta incidendo; non disponibile al momento!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>La connessione con la macchina si è interrotta: potrebbe essere senza alimentazione o ancora in funzione. Verificate prima che sia ferma, poi eseguite l&apos;homing o reimpostate l&apos;origine.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>Il file del lavoro è stato sostituito da un nuovo lavoro; impossibile riprendere.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>File scheda SD</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Scheda:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Totale:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Usato:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Libero:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Esegui</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Scegli un file da caricare</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>File G-code (*.nc *.gcode *.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 è già sulla scheda. Sostituirlo?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>Eliminare %1?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>Eseguire %1?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Lettura dell&apos;elenco file della scheda non riuscita</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Eliminazione del file non riuscita</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Esecuzione del file non riuscita</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Caricamento del file non riuscito</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Carica design</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Titolo:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Prezzo:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Immagine:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Materiale:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Richiesta non riuscita</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Accedi prima</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Compila tutti i campi</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Caricamento completato</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Dettagli design</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Acquista</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Richiesta non riuscita</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>Nessun dato del design trovato</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Accedi prima</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Acquistare questo design?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>Acquisto del design non riuscito, riprova!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Design acquistato!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>Il file SVG ha troppi livelli di annidamento</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>Il file SVG non è valido</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>Il file SVG è vuoto</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>Il file SVG contiene troppe forme</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>Il file SVG è troppo grande</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 testi non sono stati importati: converti i testi in tracciati nel programma di disegno, poi importali di nuovo.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Righe e colonne devono essere almeno 1</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>La potenza deve essere tra 0 e 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>La velocità deve essere almeno 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Dimensione o passate non valide</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Scheda test materiale</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potenza (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocità (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Righe × colonne:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Quadrato / spazio:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Modalità / passate:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Riempimento</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Genera</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Quadrato migliore</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Riga / colonna migliore:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Materiale / spessore:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>Salva in libreria</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 quadrati richiedono più di %2 livelli: %3 pagine</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 quadrati, 1 pagina</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Inserisci il materiale</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Riempimento</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Riempimento incrociato</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Scala di grigi</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>Negativo</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Sposta livello su</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Sposta livello giù</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Parametri livello</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modalità:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Angolo riempimento (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Passo riempimento (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Overscan (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocità (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potenza (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Passate</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidirezionale</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Taglia le curve con precisione di 0,01 mm</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Curve fini</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Kerf (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Larghezza del taglio: i contorni esterni si spostano in fuori e i fori in dentro della metà</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Ordine di taglio:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Come disegnato</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Ottimizzato</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>Impostazioni WiFi</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Rete della scheda</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modalità:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Nome rete:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>Indirizzo IP:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Connetti a un router (modalità STA)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>Nome WiFi:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>Password WiFi:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostra password</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Hotspot della scheda (modalità AP)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Indirizzo scheda 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Passa alla modalità AP</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Modalità STA (router)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Modalità AP (hotspot)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>Nome rete e password non possono essere vuoti!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>La password deve avere da 8 a 90 caratteri</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>Nome e password non possono contenere !, ?, ~ o $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Sono supportati solo lettere inglesi, cifre e simboli</translation>
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
        <translation>Apri</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Salva G-code</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Rotativo</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Angolo di rotazione:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Niente da visualizzare in anteprima!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connetti prima la macchina!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La macchina sta incidendo; non disponibile al momento!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Nuova pagina</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Anteprima modalità immagine</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Vettorizza bitmap</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Livelli</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Macchina</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>Il progetto non è salvato. Uscire ora?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Strumenti</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Disconnetti prima la porta seriale!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;indirizzo IP non può essere vuoto!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Porta non valida: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>Impossibile connettersi via WiFi a %1:%2. Controlla l&apos;indirizzo e che la scheda sia alimentata!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connetti prima la macchina!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Caricamento di %1 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Caricamento di %1: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Caricamento non riuscito: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>La macchina non ha avviato il lavoro: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>Impostazioni WiFi</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>File scheda SD</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca schede</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connetti prima la macchina!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;indirizzo IP non può essere vuoto!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Negozio di design</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Materiale:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Prezzo:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Modello:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Potenza:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Successiva</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Richiesta non riuscita</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>La dimensione deve essere maggiore di 0!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Inserisci il contenuto!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>La libreria dei codici a barre non è disponibile!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13 richiede 12 o 13 cifre!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A richiede 11 o 12 cifre!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Riavvia più tardi</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Lingua cambiata. Riavvia l&apos;applicazione!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
</context>
</TS>
