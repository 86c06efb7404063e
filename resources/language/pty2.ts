<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Alinhar</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Alinhar à esquerda</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Centralizar horizontalmente</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Alinhar à direita</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Alinhar ao topo</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Centralizar verticalmente</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Alinhar à base</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Centralizar na área de trabalho</translation>
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
        <translation>Matriz retangular</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Linhas:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Colunas:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Espaço entre colunas (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Espaço entre linhas (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Matriz circular</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Quantidade:</translation>
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
        <translation>Faixa de ângulo (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Girar cópias</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
        <translation>QR code / código de barras</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / código de barras</translation>
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
        <translation>Conteúdo:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Largura:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Altura da barra:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Zona de silêncio:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> módulos</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Correção de erros:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Exibir texto</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Não é possível gerar o código: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Calibre primeiro a câmera nas configurações!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrar câmera</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Tirar foto</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>A placa não responde. Verifique a conexão WiFi!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Indisponível com a máquina em funcionamento!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>A câmera só funciona via WiFi!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Cancelar foto</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Tirar mesmo assim</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>Não é recomendado tirar fotos no modo rotativo!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Movendo o cabeçote laser...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Obtendo a foto...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Falha ao obter a foto, tentando novamente (tentativa %1): %2</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Fechar a foto atual?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Foto recebida</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>A calibração não é válida. Calibre a câmera novamente!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Calibrar a câmera?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>A máquina está gravando; indisponível no momento!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Falha ao salvar a calibração: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Minha conta</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Loja de designs</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Enviar design</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Nuvem</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Faça login primeiro</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Procurar placas</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Placas encontradas:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Procurar novamente</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Procurando placas...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Busca concluída!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>Nenhuma placa encontrada</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Escolha uma placa primeiro</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Alterar camada</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Alterar parâmetros da camada</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Mover camada</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Excluir camada</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Nova página</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Renomear página</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Nome da página:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Fechar a página exclui todas as suas formas. Continuar?</translation>
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
        <translation>O desenho DXF é complexo demais</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Não é possível abrir o arquivo</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>O arquivo DXF é grande demais</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>O arquivo DXF está vazio</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>O arquivo DXF está danificado</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>Arquivos DXF binários não são suportados</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Alinhar</translation>
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
        <translation>Mover nó</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Mover ponto de controle</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Adicionar nó</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Excluir nó</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Converter em reta</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Converter em curva</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Quebrar nó</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Unir nós</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Soldar</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtrair</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersectar</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Excluir sobreposição</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Deslocar contorno</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Espelhar horizontalmente</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Espelhar verticalmente</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Girar 90° no sentido horário</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Girar 90° no sentido anti-horário</translation>
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
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Retângulo</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Triângulo</translation>
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
        <translation>Estrela</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Nós</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Salvar G-code</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Falha ao salvar!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Verifique os parâmetros na janela Rotativo antes de executar!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Falha ao gerar o G-code!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Camada %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…e mais %1</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 forma(s) fora da área de trabalho (%2 × %3 mm); a máquina pode bater nos limites ou queimar fora da mesa:
%4

Continuar?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>A posição do cabeçote é desconhecida. Conecte a máquina primeiro!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: precisa de %2 bytes/s, no máximo %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>A conexão serial transmite só %1 bytes por segundo; nesta velocidade os dados raster não acompanham:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Reduzir velocidade</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Executar mesmo assim</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Minha conta</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Apelido:</translation>
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
        <translation>Valor da recarga:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Nome do modo:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Salvar modo</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Sair da conta</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Falha na solicitação</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Digite o nome do modo</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvo com sucesso</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Download concluído</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Sair depois</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Sair agora</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Feche o programa para instalar a atualização.</translation>
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
        <translation>Deslocar contorno...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Soldar</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Subtrair</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersectar</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Excluir sobreposição</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Subtrai as demais formas da que está mais abaixo</translation>
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
        <translation>Configurações do rotativo</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Modo rotativo:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Circunferência</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diâmetro</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Eixo de rotação:</translation>
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
        <translation>Circunferência (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Diâmetro (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Deslocamento por volta:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
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
        <translation>Falha ao alterar o parâmetro</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>O arquivo anterior ainda está sendo enviado</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Não é possível ler o arquivo: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Envio cancelado</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Falha no envio: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Selecione primeiro um bitmap!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>O bitmap não tem contornos para vetorizar!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Cores em camadas</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>Ao importar, cada cor vai para uma camada própria</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrar câmera</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Após gravar as marcas, clique em &quot;Próximo&quot; para tirar uma foto e depois clique no centro das quatro cruzes</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 de %2 pontos escolhidos</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Obter código</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Entrar com código</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Lembrar senha</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Cadastrar</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Apelido:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Confirmar senha:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Esqueci a senha</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Nova senha:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Falha na solicitação</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Digite o e-mail</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Código enviado</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Digite o e-mail e o código</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Digite o e-mail e a senha</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Preencha todos os campos</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>As senhas não coincidem</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Cadastro concluído</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Senha alterada. Faça login!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Não é possível abrir o arquivo</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>Não é possível ler o arquivo DXF</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>Coordenadas DXF fora do intervalo</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>O arquivo DXF não contém formas para importar</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Parâmetros do rotativo inválidos</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>A posição do cabeçote é desconhecida</translation>
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
        <translation>Configurações de texto</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Digite o texto</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Fonte:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Tamanho (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Negrito</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Itálico</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Espaço entre letras (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Espaço entre linhas (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Tempo estimado:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Linhas de G-code:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Comprimento de gravação:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Comprimento de deslocamento:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>Com aceleração e desaceleração nos cantos; só pela velocidade: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(economiza %1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>A ordem de corte otimizada reduz o deslocamento em %1 em relação à ordem do desenho</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>As definições da máquina ainda não foram lidas: estimado com as definições de fábrica do controlador; mais exato com a máquina ligada</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Faltam %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Camada</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
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
        <translation>Pausar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>A máquina disparou um alarme!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Conecte a máquina primeiro!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Indisponível com a máquina em funcionamento!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Disparo de teste</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>O endereço IP não pode ficar vazio!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>A máquina está gravando; indisponível no momento!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Arquivos (*.nc);;Arquivos (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>Escolha ou digite uma porta serial!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Não é possível abrir a porta serial %1: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>O dispositivo na porta serial %1 não respondeu como controlador GRBL!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Erro na porta serial %1 ao conectar: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Conectado à porta serial %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Conectado via WiFi a %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>Conexão WiFi encerrada</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>A conexão WiFi foi perdida!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>A posição do cabeçote é desconhecida. Aguarde a máquina informá-la!</translation>
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
        <translation>Ir à origem</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Definir origem</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Limpar origem</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Mover para</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Executar arquivo</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Enquadrar</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Disparo de teste</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Onde o trabalho começa</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Coord. absolutas</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Posição atual</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Origem do usuário</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Qual ponto do desenho vai para o início</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Superior esquerdo</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>Superior central</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Superior direito</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Centro esquerdo</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Centro direito</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Inferior esquerdo</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>Inferior central</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Inferior direito</translation>
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
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Pré-visualização do modo</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Pontilhado</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Escala de cinza</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
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
        <translation>Largura (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Altura (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Rotação (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Manter proporção</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
        <translation>Deslocar contorno</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Distância (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Para fora</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Para dentro</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Cantos:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Arredondados</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Vivos</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Quadrados</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Manter a forma original</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
        <translation>A imagem é grande demais para abrir!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>Não é possível ler a imagem!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>JSON inválido: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Não é um arquivo de biblioteca de parâmetros</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Versão da biblioteca não suportada</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Item %1: valor de %2 inválido</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Não é possível escrever no arquivo: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Não é possível ler o arquivo: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Biblioteca de parâmetros</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Espessura:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Adicionar da camada</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Aplicar à camada</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
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
        <translation>Biblioteca de parâmetros (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Não é possível ler a biblioteca de parâmetros: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Escolha uma camada primeiro</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Digite um nome</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Já existe uma predefinição com esse nome. Substituir?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Escolha uma predefinição primeiro</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Já existe uma predefinição com esse nome</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Falha ao importar: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 predefinições adicionadas, %2 substituídas</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Falha ao exportar: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Tirar foto</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Opacidade da foto</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Ocultar foto</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
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
        <translation>Biblioteca de parâmetros</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Cartão de teste de material</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Não é possível ler a biblioteca de parâmetros: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Salvo na biblioteca de parâmetros: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>A máquina está gravando; indisponível no momento!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Não há nada para salvar!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Arquivos (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Imagens (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Falha ao salvar: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>O arquivo não existe: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Tipo de arquivo não suportado: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>Não é possível importar o arquivo; ele não contém formas utilizáveis: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Não é possível abrir o arquivo: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>O arquivo está danificado ou não é um arquivo de projeto e não pode ser aberto: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>O arquivo está danificado; só a parte intacta foi aberta: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Abrir recente</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(nenhum)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Limpar lista</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Retomar trabalho</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Retomar da linha:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>O controlador foi reiniciado: primeiro faça o Home ou defina a origem novamente.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Trabalho interrompido. Retomar da linha %1?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>Não é possível retomar o trabalho.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>A máquina está gravando; indisponível no momento!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>A ligação à máquina foi perdida: ela pode ter ficado sem energia ou ainda estar a trabalhar. Confirme primeiro que parou e depois faça o homing ou defina a origem de novo.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>O ficheiro do trabalho foi substituído por um novo trabalho; não é possível continuar.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>Arquivos do cartão SD</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Placa:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamanho</translation>
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
        <translation>Livre:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Escolha um arquivo para enviar</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>Arquivos G-code (*.nc *.gcode *.txt);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 já está no cartão. Substituir?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>Excluir %1?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>Executar %1?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Falha ao ler a lista de arquivos do cartão</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Falha ao excluir o arquivo</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Falha ao executar o arquivo</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Falha ao enviar o arquivo</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Enviar design</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Preço:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Arquivo:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Imagem:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoria:</translation>
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
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Falha na solicitação</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Faça login primeiro</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Preencha todos os campos</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Enviado com sucesso</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Detalhes do design</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Falha na solicitação</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>Dados do design não encontrados</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Faça login primeiro</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Comprar este design?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>Falha na compra do design. Tente novamente!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Design comprado!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>O arquivo SVG tem aninhamento profundo demais</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>O arquivo SVG está malformado</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>O arquivo SVG está vazio</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>O arquivo SVG tem formas demais</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Não é possível abrir o arquivo</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>O arquivo SVG é grande demais</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 texto(s) não importado(s): converta o texto em curvas no seu programa de desenho e importe novamente.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Linhas e colunas devem ser no mínimo 1</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>A potência deve estar entre 0 e 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>A velocidade deve ser no mínimo 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Tamanho ou passadas inválidos</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Cartão de teste de material</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potência (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocidade (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Linhas × colunas:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Quadrado / espaço:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Modo / passadas:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Preenchimento</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Gerar</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Melhor quadrado</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Melhor linha / coluna:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Material / espessura:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>Salvar na biblioteca</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 quadrados precisam de mais de %2 camadas: %3 páginas</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 quadrados, 1 página</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Digite o material</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Preenchimento</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Preenchimento cruzado</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Pontilhado</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Escala de cinza</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Subir camada</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Descer camada</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Parâmetros da camada</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Ângulo de preench. (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Intervalo de preench. (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Sobrevarredura (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Velocidade (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Potência (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Passadas</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidirecional</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>As curvas são cortadas com precisão de 0,01 mm</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Curvas finas</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Largura de corte (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Largura da linha de corte: os contornos externos são deslocados para fora e os furos para dentro, pela metade desse valor</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Ordem de corte:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Como desenhado</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Otimizado</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>Configurações WiFi</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Rede da placa</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Nome da rede:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>Endereço IP:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Conectar a um roteador (modo estação)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>Nome do WiFi:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>Senha do WiFi:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostrar senha</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Ponto de acesso da placa (modo AP)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Endereço da placa 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Mudar para modo ponto de acesso</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Modo estação (roteador)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Modo ponto de acesso (AP)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>O nome da rede e a senha não podem ficar vazios!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>A senha deve ter de 8 a 90 caracteres</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>O nome e a senha não podem conter !, ?, ~ ou $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Somente letras sem acento, números e símbolos são aceitos</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Salvar G-code</translation>
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
        <translation>Ângulo de rotação:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Não há nada para pré-visualizar!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Conecte a máquina primeiro!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>A máquina está gravando; indisponível no momento!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Nova página</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Pré-visualização do modo de imagem</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Vetorizar bitmap</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Camadas</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>O projeto não foi salvo. Sair agora?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Ferramentas</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Desconecte a porta serial primeiro!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>O endereço IP não pode ficar vazio!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Porta inválida: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>Não é possível conectar via WiFi a %1:%2. Verifique o endereço e se a placa está ligada!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Conecte a máquina primeiro!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Enviando %1 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Enviando %1: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Falha no envio: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>A máquina não iniciou o trabalho: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>Configurações WiFi</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>Arquivos do cartão SD</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Procurar placas</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Conecte a máquina primeiro!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>O endereço IP não pode ficar vazio!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Loja de designs</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Arquivo:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Preço:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Modelo da máquina:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Potência:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Falha na solicitação</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>O tamanho deve ser maior que 0!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Digite o conteúdo!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>A biblioteca de códigos de barras não está disponível!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13 requer 12 ou 13 dígitos!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A requer 11 ou 12 dígitos!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Reiniciar depois</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Idioma alterado. Reinicie o aplicativo!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
</TS>
