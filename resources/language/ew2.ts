<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>Выравнивание</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>По левому краю</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>По центру по горизонтали</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>По правому краю</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>По верхнему краю</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>По центру по вертикали</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>По нижнему краю</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>По центру рабочей области</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>Распределить по горизонтали</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>Распределить по вертикали</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>Массив</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>Прямоугольный массив</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>Строки:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>Столбцы:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>Шаг столбцов (мм):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Шаг строк (мм):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>Круговой массив</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>Количество:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>Центр X (мм):</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>Центр Y (мм):</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>Диапазон угла (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>Поворачивать копии</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR-код / штрихкод</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR-код / штрихкод</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR-код</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>Содержимое:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>Высота штрихов:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>Свободная зона:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> модулей</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>Коррекция ошибок:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>Показывать текст</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>Не удалось создать код: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>Сначала откалибруйте камеру в настройках!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>Калибровка камеры</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Сделать фото</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>Плата не отвечает. Проверьте WiFi-соединение!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Недоступно во время работы станка!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>Камера работает только по WiFi!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>Отменить фото</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>Всё равно снять</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>В режиме ротатора снимать не рекомендуется!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>Перемещение лазерной головки...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>Получение фото...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>Не удалось получить фото, повтор (попытка %1): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>Съёмка отменена</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>Закрыть текущее фото?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>Фото получено</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>Калибровка недействительна. Откалибруйте камеру заново!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>Откалибровать камеру?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Идёт гравировка, функция временно недоступна!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>Не удалось сохранить калибровку: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>Личный кабинет</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>Магазин макетов</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>Загрузить макет</translation>
    </message>
    <message>
        <source>云</source>
        <translation>Облако</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Сначала войдите в аккаунт</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>Поиск плат</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>Найденные платы:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Искать снова</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>Поиск плат...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>Поиск завершён!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>Платы не найдены</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>Сначала выберите плату</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>Добавление</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>Смена слоя</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>Изменение параметров слоя</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>Перемещение слоя</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Удаление слоя</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>Новая страница</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>Страница %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>Переименовать страницу</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>Имя страницы:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>При закрытии страницы все её фигуры будут удалены. Продолжить?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>DXF-чертёж слишком сложный</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>DXF-файл слишком большой</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>DXF-файл пуст</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>DXF-файл повреждён</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>Двоичные DXF-файлы не поддерживаются</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>Выравнивание</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>Равномерное распределение</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Массив</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Группировка</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Разгруппировка</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>Изменение текста</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>Перемещение узла</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>Перемещение управляющей точки</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>Добавление узла</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Удаление узла</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>Преобразование в прямую</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>Преобразование в кривую</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>Разрыв узла</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>Соединение узлов</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Объединение</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Вычитание</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Пересечение</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Исключение</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>Смещение контура</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>Отразить по горизонтали</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>Отразить по вертикали</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>Повернуть на 90° по часовой</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>Повернуть на 90° против часовой</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Сгруппировать</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>Разгруппировать</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Переместить...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>Массив</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Эллипс</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>Треугольник</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>Пятиугольник</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>Шестиугольник</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>Звезда</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>Кривая</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>Узлы</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>Сохранить G-код</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G-код (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>Не удалось сохранить!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>Перед запуском проверьте параметры в окне ротатора!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>Не удалось создать G-код!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>Слой %1: X %2..%3, Y %4..%5 мм</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…и ещё %1</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>Фигур вне рабочей области (%2 × %3 мм): %1. Станок может упереться в концевики или прожечь за пределами стола:
%4

Продолжить?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>Положение головы неизвестно. Сначала подключите станок!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: нужно %2 байт/с, не быстрее %3 мм/мин</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>Последовательный порт передаёт только %1 байт/с; на этой скорости растровые данные не успевают:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>Медленнее</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>Всё равно запустить</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>Личный кабинет</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Никнейм:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Эл. почта:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>Баланс:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>Сумма пополнения:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>Пополнить</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>Имя режима:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>Сохранить режим</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Ошибка запроса</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>Введите имя режима</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Сохранено</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>Что нового в версии</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Обновить сейчас</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>Скачивание завершено</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>Выйти позже</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>Выйти сейчас</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>Закройте программу, чтобы установить обновление.</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>Смещение контура...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>Вычесть</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>Пересечь</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>Исключить</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>Вычесть остальные фигуры из самой нижней</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>Ротатор</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>Настройки ротатора</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>Режим ротатора:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>Окружность</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Диаметр</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>Ось вращения:</translation>
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
        <translation>Окружность (мм):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>Диаметр (мм):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>Ход на оборот:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>HttpThread</name>
    <message>
        <source>参数更改失败</source>
        <translation>Не удалось изменить параметр</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>Предыдущий файл ещё загружается</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>Не удалось прочитать файл: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>Загрузка отменена</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Ошибка загрузки: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>Сначала выберите одно растровое изображение!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>В растре нет контуров для трассировки!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>Цвета по слоям</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>При импорте каждый цвет помещается на отдельный слой</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>Калибровка камеры</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>Когда метки выжжены, нажмите «Далее», чтобы сделать фото, затем по очереди щёлкните центры четырёх крестов на нём</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>Выбрано точек: %1 из %2</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>Эл. почта:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>Код:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>Получить код</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>Вход по коду</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>Запомнить пароль</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>Регистрация</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>Никнейм:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>Повтор пароля:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>Забыли пароль?</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>Новый пароль:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Ошибка запроса</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>Введите адрес эл. почты</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>Код отправлен</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>Введите эл. почту и код</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>Введите эл. почту и пароль</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Заполните все поля</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>Пароли не совпадают</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>Регистрация выполнена</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>Пароль изменён. Войдите снова!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>Не удалось прочитать DXF-файл</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>Координаты DXF вне допустимого диапазона</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>В DXF-файле нет фигур для импорта</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>Неверные параметры ротатора</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>Положение головы неизвестно</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>Параметры текста</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>Введите текст</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Шрифт:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>Размер (мм):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>Жирный</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Курсив</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>Интервал букв (мм):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>Интервал строк (мм):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>Расчётное время:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>Строк G-кода:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>Путь гравировки:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>Холостой ход:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>С ускорением и торможением на углах; только по скорости: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(экономия %1)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>Оптимизированный порядок резки сокращает холостой ход на %1 по сравнению с порядком рисования</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>Настройки станка ещё не получены: оценка по заводским настройкам контроллера; после подключения станка точнее</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>Осталось %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Показ</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>Станок выдал сигнал тревоги!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Сначала подключите станок!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>Недоступно во время работы станка!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Тест лазера</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP-адрес не может быть пустым!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Идёт гравировка, функция временно недоступна!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>Файлы (*.nc);;Файлы (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>Выберите или введите последовательный порт!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>Не удалось открыть порт %1: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>Устройство на порту %1 не ответило как контроллер GRBL!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>Ошибка порта %1 при подключении: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>Подключено к порту %1</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>Подключено по WiFi к %1</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WiFi-соединение закрыто</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>WiFi-соединение потеряно!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>Положение головы неизвестно. Дождитесь, пока станок его сообщит!</translation>
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
        <translation>Подключить</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>Домой</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>В ноль</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>Задать ноль</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>Сбросить ноль</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>Перейти к</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>Запуск файла</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>Тест лазера</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>Откуда начинается задание</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>Абсолютные</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>Текущая позиция</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>Заданный ноль</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>Какая точка рисунка ставится в начало</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Сверху слева</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Сверху справа</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>Центр</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Снизу слева</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>Снизу</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Снизу справа</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>Просмотр режима</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Чёрно-белый</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Дизеринг</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Контур</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Оттенки серого</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Негатив</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>X(mm)：</source>
        <translation>X (мм):</translation>
    </message>
    <message>
        <source>Y(mm)：</source>
        <translation>Y (мм):</translation>
    </message>
    <message>
        <source>宽(mm)：</source>
        <translation>Ширина (мм):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>Высота (мм):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>Поворот (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>Сохранять пропорции</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>Смещение контура</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>Расстояние (мм):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Наружу</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Внутрь</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>Углы:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>Скруглённые</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>Острые</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>Квадратные</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>Сохранить исходную фигуру</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>Изображение слишком большое для открытия!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>Не удалось прочитать изображение!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>Некорректный JSON: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>Это не файл библиотеки параметров</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>Версия библиотеки не поддерживается</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>Запись %1: неверное значение %2</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>Не удалось записать файл: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>Не удалось прочитать файл: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>Библиотека параметров</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Материал:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>Толщина:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> мм</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>Добавить из слоя</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>Применить к слою</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>Библиотека параметров (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Не удалось прочитать библиотеку параметров: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>Сначала выберите слой</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Введите имя</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>Пресет с таким именем уже есть. Заменить?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>Сначала выберите пресет</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>Пресет с таким именем уже есть</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>Ошибка импорта: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>Добавлено пресетов: %1, заменено: %2</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>Ошибка экспорта: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>Сделать фото</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>Прозрачность фото</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>Скрыть фото</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>Библиотека параметров</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>Тест-карта материала</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>Не удалось прочитать библиотеку параметров: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>Сохранено в библиотеку параметров: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Идёт гравировка, функция временно недоступна!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>Нечего сохранять!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Сохранить файл</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>Файлы (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>Изображения (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>Не удалось сохранить: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Файл не существует: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>Неподдерживаемый тип файла: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>Файл нельзя импортировать, в нём нет пригодных фигур: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>Не удалось открыть файл: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>Файл повреждён или не является файлом проекта: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>Файл повреждён, открыта только его целая часть: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>Недавние файлы</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Очистить список</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>Продолжение задания</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>Продолжить со строки:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>Контроллер был сброшен: сначала выполните возврат домой или заново задайте ноль.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>Задание прервано. Продолжить со строки %1?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>Не удалось продолжить задание.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Идёт гравировка, функция временно недоступна!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>Связь со станком потеряна: возможно, он обесточен или ещё работает. Сначала убедитесь, что станок остановлен, затем выполните поиск дома или заново задайте начало координат.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>Файл задания заменён новым заданием; продолжить нельзя.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>Файлы на SD-карте</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>Плата:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>Всего:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>Занято:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>Свободно:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Статус:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>Выберите файл для загрузки</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>Файлы G-кода (*.nc *.gcode *.txt);;Все файлы (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 уже есть на карте. Заменить?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>Удалить %1?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>Запустить %1?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>Не удалось прочитать список файлов карты</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>Не удалось удалить файл</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>Не удалось запустить файл</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>Не удалось загрузить файл</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>Загрузка макета</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Цена:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Файл:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>Изображение:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Категория:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Материал:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Теги:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>Описание:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Ошибка запроса</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Сначала войдите в аккаунт</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>Заполните все поля</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>Загружено</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>Сведения о макете</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>Купить</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Ошибка запроса</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>Данные макета не найдены</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>Сначала войдите в аккаунт</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>Купить этот макет?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>Не удалось купить макет. Попробуйте ещё раз!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>Макет куплен!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>Слишком глубокая вложенность в SVG-файле</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>Ошибка формата SVG-файла</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>SVG-файл пуст</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>В SVG-файле слишком много фигур</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>SVG-файл слишком большой</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>Не импортировано текстов: %1. Преобразуйте текст в кривые в графическом редакторе и импортируйте снова.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>Строк и столбцов должно быть не меньше 1</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>Мощность должна быть от 0 до 100</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>Скорость должна быть не меньше 5</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>Неверный размер или число проходов</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>Тест-карта материала</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Мощность (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Скорость (мм/мин):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>Строки × столбцы:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>Квадрат / зазор:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> мм</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>Режим / проходы:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Заливка</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>Лучший квадрат</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>Лучшие строка / столбец:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>Материал / толщина:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>В библиотеку</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>Квадратов: %1 (больше %2 слоёв), страниц: %3</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>Квадратов: %1, 1 страница</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>Введите материал</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Заливка</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>Перекрёстная заливка</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Чёрно-белый</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>Дизеринг</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>Контур</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Оттенки серого</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>Негатив</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>Негатив</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>Слой вверх</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>Слой вниз</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>Параметры слоя</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>Угол заливки (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>Шаг заливки (мм):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>Перебег (мм):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>Скорость (мм/мин):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>Мощность (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Проходы</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Показывать</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>В одну сторону</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>Кривые режутся с точностью 0,01 мм</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>Точные кривые</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>Ширина реза (мм):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>Ширина линии реза: внешние контуры смещаются наружу, а отверстия внутрь на половину этой величины</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>Порядок резки:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>Как нарисовано</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>Оптимизированный</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>Настройки WiFi</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>Сеть платы</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>Имя сети:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>Статус:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IP-адрес:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>Подключение к роутеру (STA)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>Имя WiFi:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>Пароль WiFi:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>Точка доступа платы (AP)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>Адрес платы 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>Перейти в режим AP</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>Режим STA (роутер)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>Режим AP (точка доступа)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>Имя сети и пароль не могут быть пустыми!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>Пароль должен содержать от 8 до 90 символов</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>Имя и пароль не могут содержать !, ?, ~ или $</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>Допускаются только латинские буквы, цифры и символы</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>Сохранить G-код</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>Ротатор</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>Угол поворота:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>Нечего просматривать!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Сначала подключите станок!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>Идёт гравировка, функция временно недоступна!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>Новая страница</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>Просмотр режима изображения</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>Трассировка растра</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Станок</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Без имени</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>Проект не сохранён. Выйти сейчас?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Инструменты</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>Сначала отключите последовательный порт!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP-адрес не может быть пустым!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>Неверный порт: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>Не удалось подключиться по WiFi к %1:%2. Проверьте адрес и питание платы!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Сначала подключите станок!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>Загрузка %1 (%2 МБ)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>Загрузка %1: %2 / %3 МБ</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>Ошибка загрузки: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>Станок не запустил задание: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>Настройки WiFi</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>Файлы на SD-карте</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Поиск плат</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>Сначала подключите станок!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP-адрес не может быть пустым!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>Магазин макетов</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>Категория:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>Файл:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>Материал:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>Цена:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>Модель станка:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>Мощность:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>Теги:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Предыдущая</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Следующая</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Ошибка запроса</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>Размер должен быть больше 0!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>Введите содержимое!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>Библиотека штрихкодов недоступна!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>Для EAN-13 нужно 12 или 13 цифр!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>Для UPC-A нужно 11 или 12 цифр!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>Перезапустить позже</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>Язык изменён. Перезапустите программу!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Информация</translation>
    </message>
</context>
</TS>
