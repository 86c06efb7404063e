<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Alinear</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Alinear a la izquierda</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Centrar horizontalmente</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Alinear a la derecha</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Alinear arriba</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Centrar verticalmente</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Alinear abajo</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Centrar en el área de trabajo</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Distribuir horizontalmente</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Distribuir verticalmente</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>Matriz rectangular</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Filas:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Columnas:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Espacio entre columnas (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Espacio entre filas (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Matriz circular</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Cantidad:</translation>
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
        <translation>Rango de ángulo (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Rotar copias</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>Código QR / de barras</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>Código QR / de barras</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>Código QR</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Contenido:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Ancho:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Alto de barra:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Zona de silencio:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> módulos</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Corrección de errores:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Mostrar texto</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>No se puede generar el código: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>¡Primero calibre la cámara en los ajustes!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrar cámara</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Tomar foto</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>La placa no responde. ¡Compruebe la conexión WiFi!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>¡No disponible mientras la máquina está en marcha!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>¡La cámara solo funciona por WiFi!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Cancelar foto</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Tomarla igualmente</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>¡No se recomienda tomar fotos en modo rotativo!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Moviendo el cabezal láser...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Obteniendo la foto...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Error al obtener la foto, reintentando (intento %1): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Foto cancelada</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>¿Cerrar la foto actual?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Foto recibida</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>La calibración no es válida. ¡Vuelva a calibrar la cámara!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>¿Calibrar la cámara?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La máquina está grabando; ¡no disponible por ahora!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Error al guardar la calibración: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Mi cuenta</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Tienda de diseños</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Subir diseño</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Nube</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Inicie sesión primero</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Buscar placas</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Placas encontradas:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Buscando placas...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>¡Búsqueda terminada!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>No se encontró ninguna placa</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Elija primero una placa</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Cambiar capa</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Cambiar ajustes de capa</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Mover capa</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Eliminar capa</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Nueva página</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Renombrar página</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Nombre de la página:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Al cerrar la página se eliminan todas sus formas. ¿Continuar?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>El dibujo DXF es demasiado complejo</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>El archivo DXF es demasiado grande</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>El archivo DXF está vacío</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>El archivo DXF está dañado</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>No se admiten archivos DXF binarios</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Alinear</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Distribuir uniformemente</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Mover nodo</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Mover punto de control</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Añadir nodo</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Eliminar nodo</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Convertir en recta</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Convertir en curva</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Romper nodo</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Unir nodos</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Soldar</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersecar</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Desfase</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Reflejar horizontalmente</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Reflejar verticalmente</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Girar 90° a la derecha</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Girar 90° a la izquierda</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Desagrupar</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Mover...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Triángulo</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>Pentágono</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Hexágono</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Estrella</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Nodos</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Guardar G-code</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>¡Error al guardar!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>¡Revise los ajustes en el diálogo Rotativo antes de ejecutar!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>¡Error al generar el G-code!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Capa %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…y %1 más</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 forma(s) fuera del área de trabajo (%2 × %3 mm); la máquina puede chocar con los límites o quemar fuera de la mesa:
%4

¿Continuar?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>Se desconoce la posición del cabezal. ¡Conecte primero la máquina!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: necesita %2 bytes/s, como máximo %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>La conexión serie solo transmite %1 bytes por segundo; a esta velocidad los datos ráster no llegan a tiempo:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Reducir velocidad</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Ejecutar igualmente</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Mi cuenta</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Apodo:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Saldo:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Importe a recargar:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Nombre del modo:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Guardar modo</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Error en la solicitud</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Introduzca el nombre del modo</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Guardado correctamente</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Descarga completada</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Salir más tarde</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Salir ahora</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Cierre el programa para instalar la actualización.</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>Desfase...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Soldar</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersecar</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Resta las demás formas de la que está más abajo</translation>
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
        <translation>Ajustes del rotativo</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Modo rotativo:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Circunferencia</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Eje de rotación:</translation>
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
        <translation>Circunferencia (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Diámetro (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Recorrido por vuelta:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>HttpThread</name>
    <message>
        <source>参数更改失败</source>
        <translation>Error al cambiar el ajuste</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>El archivo anterior aún se está subiendo</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Subida cancelada</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Error al subir: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>¡Seleccione primero un mapa de bits!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>¡El mapa de bits no tiene contornos para vectorizar!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Colores a capas</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>Al importar, cada color va a su propia capa</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrar cámara</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Cuando las marcas estén grabadas, pulse &quot;Siguiente&quot; para tomar una foto y luego haga clic en el centro de las cuatro cruces</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 de %2 puntos elegidos</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Correo:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Obtener código</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Entrar con código</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Recordar contraseña</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Registrarse</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Apodo:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Confirmar contraseña:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>¿Olvidó la contraseña?</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Nueva contraseña:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Error en la solicitud</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Introduzca el correo electrónico</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Código enviado</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Introduzca el correo y el código</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Introduzca el correo y la contraseña</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Rellene todos los campos</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Registro completado</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Contraseña cambiada. ¡Inicie sesión!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>No se puede leer el archivo DXF</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>Coordenadas DXF fuera de rango</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>El archivo DXF no contiene formas para importar</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Ajustes del rotativo no válidos</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>Se desconoce la posición del cabezal</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>Ajustes de texto</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Introduzca el texto</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Tamaño (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Espacio entre letras (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Interlineado (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Tiempo estimado:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Líneas de G-code:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Longitud de grabado:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Longitud de desplazamiento:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>Con aceleración y frenado en esquinas; solo a la velocidad: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(ahorra %1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>El orden de corte optimizado reduce el desplazamiento en %1 respecto al orden de dibujo</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>Aún no se han leído los ajustes de la máquina: estimado con los ajustes de fábrica del controlador; más preciso con la máquina conectada</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Quedan %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>¡La máquina ha dado una alarma!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>¡Conecte primero la máquina!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>¡No disponible mientras la máquina está en marcha!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Disparo de prueba</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>¡La dirección IP no puede estar vacía!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La máquina está grabando; ¡no disponible por ahora!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Archivos (*.nc);;Archivos (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>¡Elija o escriba un puerto serie!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>No se puede abrir el puerto serie %1: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>¡El dispositivo del puerto serie %1 no respondió como controlador GRBL!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Error del puerto serie %1 al conectar: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Conectado al puerto serie %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Conectado por WiFi a %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>Conexión WiFi cerrada</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>¡Se perdió la conexión WiFi!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>Se desconoce la posición del cabezal. ¡Espere a que la máquina la informe!</translation>
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
        <translation>Conectar</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Ir al origen</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Fijar origen</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Borrar origen</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Mover a</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Ejecutar archivo</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Encuadrar</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Disparo de prueba</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Dónde empieza el trabajo</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Coord. absolutas</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Posición actual</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Origen de usuario</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Qué punto del diseño va al inicio</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Arriba izquierda</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>Arriba centro</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Arriba derecha</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Centro izquierda</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Centro derecha</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Abajo izquierda</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>Abajo centro</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Abajo derecha</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Vista previa del modo</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Mover</translation>
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
        <translation>Ancho (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Alto (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Rotación (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Bloquear proporción</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Distancia (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Hacia fuera</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Hacia dentro</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Esquinas:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Redondeadas</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Afiladas</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Cuadradas</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Conservar la forma original</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>¡La imagen es demasiado grande para abrirla!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>¡No se puede leer la imagen!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>JSON no válido: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>No es un archivo de biblioteca de parámetros</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Versión de biblioteca no compatible</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Entrada %1: valor de %2 no válido</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>No se puede escribir el archivo: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Biblioteca de parámetros</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Grosor:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Añadir desde capa</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Aplicar a capa</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Biblioteca de parámetros (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>No se puede leer la biblioteca de parámetros: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Elija primero una capa</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduzca un nombre</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Ya existe un preajuste con ese nombre. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Elija primero un preajuste</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Ya existe un preajuste con ese nombre</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Error al importar: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 preajustes añadidos, %2 reemplazados</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Error al exportar: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Tomar foto</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Opacidad de la foto</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Ocultar foto</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Biblioteca de parámetros</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Tarjeta de prueba de material</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>No se puede leer la biblioteca de parámetros: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Guardado en la biblioteca de parámetros: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La máquina está grabando; ¡no disponible por ahora!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>¡No hay nada que guardar!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Archivos (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Imágenes (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Error al guardar: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>El archivo no existe: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Tipo de archivo no compatible: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>No se puede importar el archivo; no contiene formas utilizables: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>No se puede abrir el archivo: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>El archivo está dañado o no es un archivo de proyecto y no se puede abrir: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>El archivo está dañado; solo se abrió la parte intacta: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Borrar lista</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Reanudar trabajo</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Reanudar desde la línea:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>El controlador se ha reiniciado: primero haga Home o vuelva a fijar el origen.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Trabajo interrumpido. ¿Reanudar desde la línea %1?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>No se puede reanudar el trabajo.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La máquina está grabando; ¡no disponible por ahora!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>Se perdió la conexión con la máquina: puede haberse quedado sin alimentación o seguir trabajando. Compruebe primero que está detenida y luego haga el homing o vuelva a fijar el origen.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>El archivo del trabajo fue reemplazado por un trabajo nuevo; no se puede reanudar.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>Archivos de la tarjeta SD</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Placa:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Usado:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Libre:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Elija un archivo para subir</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>Archivos G-code (*.nc *.gcode *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 ya está en la tarjeta. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>¿Eliminar %1?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>¿Ejecutar %1?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Error al leer la lista de archivos de la tarjeta</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Error al eliminar el archivo</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Error al ejecutar el archivo</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Error al subir el archivo</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Subir diseño</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Precio:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Imagen:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Etiquetas:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Error en la solicitud</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Inicie sesión primero</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Rellene todos los campos</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Subido correctamente</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Detalles del diseño</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Comprar</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Error en la solicitud</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>No se encontraron datos del diseño</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Inicie sesión primero</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>¿Comprar este diseño?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>No se pudo comprar el diseño. ¡Inténtelo de nuevo!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>¡Diseño comprado!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>El archivo SVG tiene demasiados niveles de anidamiento</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>El archivo SVG tiene un formato incorrecto</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>El archivo SVG está vacío</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>El archivo SVG tiene demasiadas formas</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>El archivo SVG es demasiado grande</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 texto(s) sin importar: convierta el texto en curvas en su programa de dibujo y vuelva a importarlo.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Las filas y columnas deben ser al menos 1</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>La potencia debe estar entre 0 y 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>La velocidad debe ser al menos 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Tamaño o pasadas no válidos</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Tarjeta de prueba de material</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potencia (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocidad (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Filas × columnas:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Cuadrado / espacio:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Modo / pasadas:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Generar</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Mejor cuadrado</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Mejor fila / columna:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Material / grosor:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>Guardar en biblioteca</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 cuadrados necesitan más de %2 capas: %3 páginas</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 cuadrados, 1 página</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Introduzca el material</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Relleno cruzado</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Escala de grises</translation>
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
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Subir capa</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Bajar capa</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Ajustes de capa</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Ángulo de relleno (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Intervalo de relleno (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Sobrebarrido (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocidad (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potencia (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Pasadas</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidireccional</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Las curvas se cortan con una precisión de 0,01 mm</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Curvas finas</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Ancho de corte (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Ancho de la línea de corte: los contornos exteriores se desplazan hacia fuera y los agujeros hacia dentro, la mitad de este valor</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Orden de corte:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Como se dibujó</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Optimizado</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>Ajustes WiFi</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Red de la placa</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Nombre de red:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>Dirección IP:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Conectar a un router (modo estación)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>Nombre WiFi:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>Contraseña WiFi:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostrar contraseña</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Punto de acceso de la placa (modo AP)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Dirección de la placa 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Cambiar a modo punto de acceso</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Modo estación (router)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Modo punto de acceso (AP)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>¡El nombre de red y la contraseña no pueden estar vacíos!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>La contraseña debe tener entre 8 y 90 caracteres</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>El nombre y la contraseña no pueden contener !, ?, ~ ni $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Solo se admiten letras inglesas, dígitos y símbolos</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Guardar G-code</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Rotativo</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Ángulo de rotación:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>¡No hay nada que previsualizar!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>¡Conecte primero la máquina!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La máquina está grabando; ¡no disponible por ahora!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Nueva página</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Vista previa del modo de imagen</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Vectorizar mapa de bits</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>El diseño no está guardado. ¿Salir ahora?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Herramientas</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>¡Desconecte primero el puerto serie!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>¡La dirección IP no puede estar vacía!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Puerto no válido: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>No se puede conectar por WiFi a %1:%2. ¡Compruebe la dirección y que la placa esté encendida!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>¡Conecte primero la máquina!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Subiendo %1 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Subiendo %1: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Error al subir: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>La máquina no inició el trabajo: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>Ajustes WiFi</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>Archivos de la tarjeta SD</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Buscar placas</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>¡Conecte primero la máquina!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>¡La dirección IP no puede estar vacía!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Tienda de diseños</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Precio:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Modelo de máquina:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Potencia:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Etiquetas:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Error en la solicitud</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>¡El tamaño debe ser mayor que 0!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>¡Introduzca el contenido!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>¡La biblioteca de códigos de barras no está disponible!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>¡EAN-13 requiere 12 o 13 dígitos!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>¡UPC-A requiere 11 o 12 dígitos!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Reiniciar más tarde</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Idioma cambiado. ¡Reinicie la aplicación!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
</TS>
