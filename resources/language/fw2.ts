<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Aligner</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>Centrer horizontalement</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>Aligner à droite</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>Aligner en haut</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>Centrer verticalement</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>Aligner en bas</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>Centrer dans la zone de travail</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Répartir horizontalement</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Répartir verticalement</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>Réseau rectangulaire</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Lignes&#xa0;:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Espacement colonnes (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Espacement lignes (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Réseau circulaire</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>Centre X (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>Centre Y (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>Plage d&apos;angle (°)&#xa0;:</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Pivoter les copies</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / code-barres</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR code / code-barres</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR code</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Contenu&#xa0;:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Hauteur des barres&#xa0;:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Zone de silence&#xa0;:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> modules</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Correction d&apos;erreur&#xa0;:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Afficher le texte</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Impossible de générer le code&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Calibrez d&apos;abord la caméra dans les paramètres&#xa0;!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrer la caméra</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Prendre une photo</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>La carte ne répond pas. Vérifiez la liaison WiFi&#xa0;!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Indisponible pendant que la machine fonctionne&#xa0;!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>La caméra ne fonctionne qu&apos;en WiFi&#xa0;!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Annuler la photo</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Prendre quand même</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>La prise de photo en mode rotatif est déconseillée&#xa0;!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Déplacement de la tête laser...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Récupération de la photo...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Échec de la récupération de la photo, nouvelle tentative (tentative %1)&#xa0;: %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Photo annulée</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Fermer la photo actuelle&#xa0;?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Photo reçue</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>La calibration n&apos;est pas valide. Recalibrez la caméra&#xa0;!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Calibrer la caméra&#xa0;?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La machine est en cours de gravure&#xa0;; indisponible pour le moment&#xa0;!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Échec de l&apos;enregistrement de la calibration&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Mon compte</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Boutique de modèles</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Publier un modèle</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Cloud</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Connectez-vous d&apos;abord</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Rechercher des cartes</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Cartes trouvées&#xa0;:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Relancer la recherche</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Recherche des cartes...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Recherche terminée&#xa0;!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>Aucune carte trouvée</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Choisissez d&apos;abord une carte</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Modifier le calque</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Modifier les paramètres du calque</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Déplacer le calque</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Supprimer le calque</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Nouvelle page</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Renommer la page</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Nom de la page&#xa0;:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>Fermer la page supprime toutes ses formes. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>Le dessin DXF est trop complexe</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossible d&apos;ouvrir le fichier</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>Le fichier DXF est trop volumineux</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>Le fichier DXF est vide</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>Le fichier DXF est endommagé</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>Les fichiers DXF binaires ne sont pas pris en charge</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Aligner</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Répartir uniformément</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Dégrouper</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Déplacer le nœud</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Déplacer le point de contrôle</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Ajouter un nœud</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Supprimer le nœud</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Convertir en droite</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Convertir en courbe</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Séparer le nœud</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Joindre les nœuds</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Souder</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Exclure</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Décalage</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Rotation 90° horaire</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Rotation 90° antihoraire</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Dégrouper</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Déplacer...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Ligne</translation>
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
        <translation>Pentagone</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Hexagone</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Étoile</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Nœud</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Enregistrer le G-code</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-code (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Échec de l&apos;enregistrement&#xa0;!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Vérifiez les paramètres dans la fenêtre Rotatif avant de lancer&#xa0;!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Échec de la génération du G-code&#xa0;!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Calque %1&#xa0;: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…et %1 de plus</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1 forme(s) hors de la zone de travail (%2 × %3 mm)&#xa0;; la machine risque de heurter ses butées ou de brûler hors du plateau&#xa0;:
%4

Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>La position de la tête est inconnue. Connectez d&apos;abord la machine&#xa0;!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1 : %2 octets/s nécessaires, au plus %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>La liaison série ne transmet que %1 octets par seconde ; à cette vitesse, les données raster ne suivent pas :</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Ralentir</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Lancer quand même</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Mon compte</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Pseudo&#xa0;:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Solde&#xa0;:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Montant&#xa0;:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Enregistrer les préréglages</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Déconnexion</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Échec de la requête</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Saisissez un nom de préréglage</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Enregistré</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Quitter plus tard</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Quitter maintenant</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Quittez le programme pour installer la mise à jour.</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>Décalage...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Souder</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Exclure</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Soustraire les autres formes de la forme du dessous</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>Rotatif</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>Paramètres du rotatif</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Mode rotatif&#xa0;:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Circonférence</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Axe de rotation&#xa0;:</translation>
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
        <translation>Circonférence (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Diamètre (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Course par tour&#xa0;:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
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
        <translation>Échec de la modification du paramètre</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>Le fichier précédent est encore en cours d&apos;envoi</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Impossible de lire le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Envoi annulé</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Échec de l&apos;envoi&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Sélectionnez d&apos;abord une image bitmap&#xa0;!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>L&apos;image bitmap n&apos;a aucun contour à vectoriser&#xa0;!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Couleurs en calques</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>À l&apos;importation, placer chaque couleur sur son propre calque</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Calibrer la caméra</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Une fois les repères gravés, cliquez sur «&#xa0;Suivant&#xa0;» pour prendre une photo, puis cliquez dans l&apos;ordre sur le centre des quatre croix</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1 points sur %2 choisis</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Code&#xa0;:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Obtenir le code</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Connexion par code</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Mémoriser le mot de passe</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Pseudo&#xa0;:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Confirmer le mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Mot de passe oublié</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Nouveau mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Échec de la requête</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Saisissez votre e-mail</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Code envoyé</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Saisissez l&apos;e-mail et le code</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Saisissez l&apos;e-mail et le mot de passe</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Remplissez tous les champs</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Inscription réussie</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Mot de passe modifié. Connectez-vous&#xa0;!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Impossible d&apos;ouvrir le fichier</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>Impossible de lire le fichier DXF</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>Coordonnées DXF hors limites</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>Le fichier DXF ne contient aucune forme à importer</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Paramètres du rotatif non valides</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>La position de la tête est inconnue</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>Paramètres du texte</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Saisissez le texte</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Police&#xa0;:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Taille (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Espacement lettres (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Interligne (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Durée estimée&#xa0;:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Lignes de G-code&#xa0;:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Longueur gravée&#xa0;:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Déplacements à vide&#xa0;:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>Avec accélération et ralentissement aux angles ; à la seule vitesse : %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(−%1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>L&apos;ordre de coupe optimisé réduit les déplacements à vide de %1 par rapport à l&apos;ordre du dessin</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>Réglages de la machine pas encore lus : estimation avec les réglages d’usine du contrôleur ; plus précise une fois la machine connectée</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Reste&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connecter</translation>
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
        <translation>La machine a déclenché une alarme&#xa0;!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connectez d&apos;abord la machine&#xa0;!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Indisponible pendant que la machine fonctionne&#xa0;!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Tir test</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;adresse IP ne peut pas être vide&#xa0;!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La machine est en cours de gravure&#xa0;; indisponible pour le moment&#xa0;!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Fichiers (*.nc);;Fichiers (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>Choisissez ou saisissez un port série&#xa0;!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Impossible d&apos;ouvrir le port série %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>L&apos;appareil sur le port série %1 n&apos;a pas répondu comme un contrôleur GRBL&#xa0;!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Erreur du port série %1 lors de la connexion&#xa0;: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Connecté au port série %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Connecté en WiFi à %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>Liaison WiFi fermée</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>Liaison WiFi perdue&#xa0;!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>La position de la tête est inconnue. Attendez que la machine la signale&#xa0;!</translation>
    </message>
</context>
<context>
    <name>MachinePanel</name>
    <message>
        <source>COM:</source>
        <translation>COM&#xa0;:</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Homing</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Aller à l&apos;origine</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Définir l&apos;origine</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Effacer l&apos;origine</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Lancer le fichier</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Cadrage</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Tir test</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Où le travail commence</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Coordonnées absolues</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Position actuelle</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Origine utilisateur</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Quel point du dessin est placé au départ</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>En bas à droite</translation>
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
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Aperçu du mode</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Négatif</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>X(mm)：</source>
        <translation>X (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>Y(mm)：</source>
        <translation>Y (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>宽(mm)：</source>
        <translation>Largeur (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Hauteur (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Rotation (°)&#xa0;:</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Distance (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Vers l&apos;extérieur</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Vers l&apos;intérieur</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Angles&#xa0;:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Arrondis</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Vifs</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Carrés</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Garder l&apos;original</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>L&apos;image est trop grande pour être ouverte&#xa0;!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>Impossible de lire l&apos;image&#xa0;!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>JSON non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Ce n&apos;est pas un fichier de bibliothèque de paramètres</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Version de bibliothèque non prise en charge</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Entrée %1&#xa0;: %2 non valide</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Impossible d&apos;écrire le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Impossible de lire le fichier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Bibliothèque de paramètres</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Matériau&#xa0;:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Épaisseur&#xa0;:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Ajouter depuis le calque</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Appliquer au calque</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Bibliothèque de paramètres (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Impossible de lire la bibliothèque de paramètres&#xa0;: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Choisissez d&apos;abord un calque</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Saisissez un nom</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Un préréglage de ce nom existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Choisissez d&apos;abord un préréglage</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Un préréglage de ce nom existe déjà</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Échec de l&apos;importation&#xa0;: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>%1 préréglage(s) ajouté(s), %2 remplacé(s)</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Échec de l&apos;exportation&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Prendre une photo</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Opacité de la photo</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Masquer la photo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Bibliothèque de paramètres</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Carte de test matériau</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Impossible de lire la bibliothèque de paramètres&#xa0;: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Enregistré dans la bibliothèque de paramètres&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La machine est en cours de gravure&#xa0;; indisponible pour le moment&#xa0;!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Rien à enregistrer&#xa0;!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Fichiers (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Échec de l&apos;enregistrement&#xa0;: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Le fichier n&apos;existe pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Type de fichier non pris en charge&#xa0;: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>Impossible d&apos;importer le fichier&#xa0;; il ne contient aucune forme utilisable&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Impossible d&apos;ouvrir le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>Le fichier est endommagé ou n&apos;est pas un fichier de projet et ne peut pas être ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>Le fichier est endommagé&#xa0;; seule sa partie intacte a été ouverte&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Effacer la liste</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Reprendre le travail</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Reprendre à la ligne&#xa0;:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>Le contrôleur a été réinitialisé&#xa0;: faites d&apos;abord un homing ou redéfinissez l&apos;origine.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Le travail a été interrompu. Reprendre à la ligne %1&#xa0;?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>Impossible de reprendre le travail.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La machine est en cours de gravure&#xa0;; indisponible pour le moment&#xa0;!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>La connexion à la machine est perdue&#xa0;: elle a peut-être perdu l&apos;alimentation ou travaille encore. Vérifiez d&apos;abord qu&apos;elle est arrêtée, puis faites la prise d&apos;origine ou redéfinissez l&apos;origine.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>Le fichier de la tâche a été remplacé par une nouvelle tâche ; impossible de reprendre.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>Fichiers de la carte SD</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Carte&#xa0;:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Total&#xa0;:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Utilisé&#xa0;:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Libre&#xa0;:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Choisir un fichier à envoyer</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>Fichiers G-code (*.nc *.gcode *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 est déjà sur la carte. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>Supprimer %1&#xa0;?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>Lancer %1&#xa0;?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Échec de la lecture de la liste des fichiers de la carte</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Échec de la suppression du fichier</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Échec du lancement du fichier</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Échec de l&apos;envoi du fichier</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Publier un modèle</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Prix&#xa0;:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Image&#xa0;:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Matériau&#xa0;:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Mots-clés&#xa0;:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Publier</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Échec de la requête</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Connectez-vous d&apos;abord</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Remplissez tous les champs</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Modèle publié</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Détails du modèle</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Acheter</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Échec de la requête</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>Aucune donnée de modèle trouvée</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Connectez-vous d&apos;abord</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Acheter ce modèle&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>L&apos;achat a échoué. Veuillez réessayer&#xa0;!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Modèle acheté&#xa0;!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>Le fichier SVG est trop imbriqué</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>Le fichier SVG est mal formé</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>Le fichier SVG est vide</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>Le fichier SVG contient trop de formes</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossible d&apos;ouvrir le fichier</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>Le fichier SVG est trop volumineux</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>%1 texte(s) non importé(s)&#xa0;: convertissez les textes en chemins dans votre logiciel de dessin, puis importez à nouveau.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Il faut au moins 1 ligne et 1 colonne</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>La puissance doit être comprise entre 0 et 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>La vitesse doit être d&apos;au moins 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Taille ou nombre de passes non valide</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Carte de test matériau</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Puissance (%)&#xa0;:</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Vitesse (mm/min)&#xa0;:</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Lignes × colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Carré / espacement&#xa0;:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Mode / passes&#xa0;:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Générer</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Meilleur carré</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Meilleure ligne / colonne&#xa0;:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Matériau / épaisseur&#xa0;:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>Ajouter à la bibliothèque</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>%1 carrés dépassent %2 calques&#xa0;: %3 pages</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>%1 carrés, 1 page</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Saisissez le matériau</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Remplissage croisé</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Négatif</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>Négatif</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Monter le calque</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Descendre le calque</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Paramètres du calque</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Angle de remplissage (°)&#xa0;:</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Pas de remplissage (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Overscan (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Vitesse (mm/min)&#xa0;:</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Puissance (%)&#xa0;:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>Unidirectionnel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Découper les courbes avec une précision de 0,01 mm</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Courbes fines</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Saignée (mm)&#xa0;:</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Largeur de coupe&#xa0;: les contours extérieurs sont décalés de la moitié vers l&apos;extérieur, les trous vers l&apos;intérieur</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Ordre de coupe&#xa0;:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Tel que dessiné</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Optimisé</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>Paramètres WiFi</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Réseau de la carte</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Nom du réseau&#xa0;:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>Adresse IP&#xa0;:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Rejoindre un routeur (mode STA)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>Nom du WiFi&#xa0;:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>Mot de passe WiFi&#xa0;:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Point d&apos;accès de la carte (mode AP)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Adresse de la carte 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Passer en mode AP</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Mode STA (routeur)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Mode AP (point d&apos;accès)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>Le nom du réseau et le mot de passe ne peuvent pas être vides&#xa0;!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>Le mot de passe doit comporter de 8 à 90 caractères</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>Le nom et le mot de passe ne peuvent pas contenir&#xa0;!,&#xa0;?, ~ ou $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Seuls les caractères anglais, les chiffres et les symboles sont pris en charge</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Enregistrer le G-code</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Rotatif</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Angle de rotation&#xa0;:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Rien à prévisualiser&#xa0;!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connectez d&apos;abord la machine&#xa0;!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>La machine est en cours de gravure&#xa0;; indisponible pour le moment&#xa0;!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Nouvelle page</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Aperçu du mode image</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Vectoriser le bitmap</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>Le projet n&apos;est pas enregistré. Quitter maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Outils</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Déconnectez d&apos;abord le port série&#xa0;!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;adresse IP ne peut pas être vide&#xa0;!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Port non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>Impossible de se connecter en WiFi à %1:%2. Vérifiez l&apos;adresse et l&apos;alimentation de la carte&#xa0;!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connectez d&apos;abord la machine&#xa0;!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Envoi de %1 (%2 Mo)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Envoi de %1&#xa0;: %2 / %3 Mo</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Échec de l&apos;envoi&#xa0;: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>La machine n&apos;a pas démarré la tâche&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>Paramètres WiFi</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>Fichiers de la carte SD</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Rechercher des cartes</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Connectez d&apos;abord la machine&#xa0;!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>L&apos;adresse IP ne peut pas être vide&#xa0;!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Boutique de modèles</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Matériau&#xa0;:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Prix&#xa0;:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Machine&#xa0;:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Puissance&#xa0;:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Mots-clés&#xa0;:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Échec de la requête</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>La taille doit être supérieure à 0&#xa0;!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Saisissez le contenu&#xa0;!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>La bibliothèque de codes-barres n&apos;est pas disponible&#xa0;!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13 nécessite 12 ou 13 chiffres&#xa0;!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A nécessite 11 ou 12 chiffres&#xa0;!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Redémarrer plus tard</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Langue modifiée. Veuillez redémarrer l&apos;application&#xa0;!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
</context>
</TS>
