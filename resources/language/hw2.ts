<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
<context>
    <name>AlignPanel</name>
    <message>
        <source>对齐</source>
        <translation>정렬</translation>
    </message>
    <message>
        <source>左对齐</source>
        <translation>왼쪽 정렬</translation>
    </message>
    <message>
        <source>水平居中</source>
        <translation>가로 가운데</translation>
    </message>
    <message>
        <source>右对齐</source>
        <translation>오른쪽 정렬</translation>
    </message>
    <message>
        <source>顶对齐</source>
        <translation>위쪽 정렬</translation>
    </message>
    <message>
        <source>垂直居中</source>
        <translation>세로 가운데</translation>
    </message>
    <message>
        <source>底对齐</source>
        <translation>아래쪽 정렬</translation>
    </message>
    <message>
        <source>工作区居中</source>
        <translation>작업 영역 가운데</translation>
    </message>
    <message>
        <source>水平等距</source>
        <translation>가로 등간격</translation>
    </message>
    <message>
        <source>垂直等距</source>
        <translation>세로 등간격</translation>
    </message>
</context>
<context>
    <name>ArrayDialog</name>
    <message>
        <source>阵列</source>
        <translation>배열</translation>
    </message>
    <message>
        <source>矩形阵列</source>
        <translation>사각 배열</translation>
    </message>
    <message>
        <source>行数：</source>
        <translation>행 수:</translation>
    </message>
    <message>
        <source>列数：</source>
        <translation>열 수:</translation>
    </message>
    <message>
        <source>列间距(mm)：</source>
        <translation>열 간격 (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>행 간격 (mm):</translation>
    </message>
    <message>
        <source>圆形阵列</source>
        <translation>원형 배열</translation>
    </message>
    <message>
        <source>数量：</source>
        <translation>개수:</translation>
    </message>
    <message>
        <source>中心X(mm)：</source>
        <translation>중심 X (mm):</translation>
    </message>
    <message>
        <source>中心Y(mm)：</source>
        <translation>중심 Y (mm):</translation>
    </message>
    <message>
        <source>角度范围(°)：</source>
        <translation>각도 범위 (°):</translation>
    </message>
    <message>
        <source>旋转副本</source>
        <translation>복사본 회전</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>BarcodeActions</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR 코드 / 바코드</translation>
    </message>
</context>
<context>
    <name>BarcodeDialog</name>
    <message>
        <source>二维码/条形码</source>
        <translation>QR 코드 / 바코드</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>유형:</translation>
    </message>
    <message>
        <source>QR 码</source>
        <translation>QR 코드</translation>
    </message>
    <message>
        <source>内容：</source>
        <translation>내용:</translation>
    </message>
    <message>
        <source>宽度：</source>
        <translation>너비:</translation>
    </message>
    <message>
        <source>条高：</source>
        <translation>바 높이:</translation>
    </message>
    <message>
        <source>静区：</source>
        <translation>여백:</translation>
    </message>
    <message>
        <source> 模块</source>
        <translation> 모듈</translation>
    </message>
    <message>
        <source>纠错等级：</source>
        <translation>오류 정정:</translation>
    </message>
    <message>
        <source>显示文字</source>
        <translation>텍스트 표시</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>无法生成条码：%1</source>
        <translation>코드를 생성할 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>CalibrationStore</name>
    <message>
        <source>请先在设置界面校准摄像头!</source>
        <translation>먼저 설정에서 카메라를 보정하세요!</translation>
    </message>
</context>
<context>
    <name>CameraController</name>
    <message>
        <source>校准摄像头</source>
        <translation>카메라 보정</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>사진 촬영</translation>
    </message>
    <message>
        <source>设备没有响应,请检查WiFi连接!</source>
        <translation>보드가 응답하지 않습니다. WiFi 연결을 확인하세요!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>기기 작동 중에는 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>使用相机必须要在WiFi模式!</source>
        <translation>카메라는 WiFi 연결에서만 사용할 수 있습니다!</translation>
    </message>
    <message>
        <source>取消拍照</source>
        <translation>촬영 취소</translation>
    </message>
    <message>
        <source>继续拍照</source>
        <translation>그래도 촬영</translation>
    </message>
    <message>
        <source>滚轴模式不建议拍照!</source>
        <translation>로터리 모드에서는 촬영을 권장하지 않습니다!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>正在移动激光头...</source>
        <translation>레이저 헤드 이동 중...</translation>
    </message>
    <message>
        <source>正在获取照片...</source>
        <translation>사진 가져오는 중...</translation>
    </message>
    <message>
        <source>获取照片失败,正在重试(第%1次): %2</source>
        <translation>사진 가져오기 실패, 재시도 중 (%1회차): %2</translation>
    </message>
    <message>
        <source>已取消拍照</source>
        <translation>촬영이 취소되었습니다</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>是否关闭当前拍照</source>
        <translation>현재 사진을 닫으시겠습니까?</translation>
    </message>
    <message>
        <source>照片已获取</source>
        <translation>사진을 받았습니다</translation>
    </message>
    <message>
        <source>校准数据无效,请重新校准摄像头!</source>
        <translation>보정 데이터가 올바르지 않습니다. 카메라를 다시 보정하세요!</translation>
    </message>
    <message>
        <source>是否校准摄像头</source>
        <translation>카메라를 보정하시겠습니까?</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>기기가 각인 중입니다. 지금은 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>校准数据保存失败: %1</source>
        <translation>보정 데이터 저장 실패: %1</translation>
    </message>
</context>
<context>
    <name>CloudController</name>
    <message>
        <source>登录</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>个人中心</source>
        <translation>내 계정</translation>
    </message>
    <message>
        <source>素材商城</source>
        <translation>디자인 스토어</translation>
    </message>
    <message>
        <source>上传素材</source>
        <translation>디자인 업로드</translation>
    </message>
    <message>
        <source>云</source>
        <translation>클라우드</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>먼저 로그인하세요</translation>
    </message>
</context>
<context>
    <name>ControllerSearchDialog</name>
    <message>
        <source>搜索设备</source>
        <translation>보드 검색</translation>
    </message>
    <message>
        <source>找到的设备：</source>
        <translation>찾은 보드:</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>다시 검색</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>正在搜索设备...</source>
        <translation>보드 검색 중...</translation>
    </message>
    <message>
        <source>搜索完成!</source>
        <translation>검색 완료!</translation>
    </message>
    <message>
        <source>未找到设备</source>
        <translation>보드를 찾지 못했습니다</translation>
    </message>
    <message>
        <source>请先选择设备</source>
        <translation>먼저 보드를 선택하세요</translation>
    </message>
</context>
<context>
    <name>DesignCommand</name>
    <message>
        <source>添加</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>修改图层</source>
        <translation>레이어 변경</translation>
    </message>
    <message>
        <source>修改图层参数</source>
        <translation>레이어 설정 변경</translation>
    </message>
    <message>
        <source>移动图层</source>
        <translation>레이어 이동</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>레이어 삭제</translation>
    </message>
</context>
<context>
    <name>DesignPages</name>
    <message>
        <source>新建页面</source>
        <translation>새 페이지</translation>
    </message>
    <message>
        <source>页面%1</source>
        <translation>페이지 %1</translation>
    </message>
    <message>
        <source>重命名页面</source>
        <translation>페이지 이름 변경</translation>
    </message>
    <message>
        <source>页面名称：</source>
        <translation>페이지 이름:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>关闭页面将删除其中的所有图形,是否继续?</source>
        <translation>페이지를 닫으면 그 안의 모든 도형이 삭제됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
</context>
<context>
    <name>DxfImport</name>
    <message>
        <source>DXF 图形过于复杂</source>
        <translation>DXF 도면이 너무 복잡합니다</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>DXF 文件过大</source>
        <translation>DXF 파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>DXF 文件为空</source>
        <translation>DXF 파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>DXF 文件已损坏</source>
        <translation>DXF 파일이 손상되었습니다</translation>
    </message>
    <message>
        <source>不支持二进制 DXF 文件</source>
        <translation>바이너리 DXF 파일은 지원되지 않습니다</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message>
        <source>对齐</source>
        <translation>정렬</translation>
    </message>
    <message>
        <source>等间距分布</source>
        <translation>균등 분배</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>배열</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>그룹 해제</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>修改文字</source>
        <translation>텍스트 편집</translation>
    </message>
    <message>
        <source>移动节点</source>
        <translation>노드 이동</translation>
    </message>
    <message>
        <source>移动控制点</source>
        <translation>제어점 이동</translation>
    </message>
    <message>
        <source>添加节点</source>
        <translation>노드 추가</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>노드 삭제</translation>
    </message>
    <message>
        <source>转为直线</source>
        <translation>직선으로 변환</translation>
    </message>
    <message>
        <source>转为曲线</source>
        <translation>곡선으로 변환</translation>
    </message>
    <message>
        <source>断开节点</source>
        <translation>노드 끊기</translation>
    </message>
    <message>
        <source>连接节点</source>
        <translation>노드 연결</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>용접</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>빼기</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>교차</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>偏移</source>
        <translation>오프셋</translation>
    </message>
</context>
<context>
    <name>EditController</name>
    <message>
        <source>撤销</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>再制</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>水平镜像</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>垂直镜像</source>
        <translation>상하 반전</translation>
    </message>
    <message>
        <source>顺时针旋转90°</source>
        <translation>시계 방향 90° 회전</translation>
    </message>
    <message>
        <source>逆时针旋转90°</source>
        <translation>반시계 방향 90° 회전</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>打散</source>
        <translation>그룹 해제</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>이동...</translation>
    </message>
    <message>
        <source>阵列</source>
        <translation>배열</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>직선</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>사각형</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>타원</translation>
    </message>
    <message>
        <source>三角形</source>
        <translation>삼각형</translation>
    </message>
    <message>
        <source>五边形</source>
        <translation>오각형</translation>
    </message>
    <message>
        <source>六边形</source>
        <translation>육각형</translation>
    </message>
    <message>
        <source>五角星</source>
        <translation>별</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>곡선</translation>
    </message>
    <message>
        <source>节点</source>
        <translation>노드</translation>
    </message>
</context>
<context>
    <name>GcodeJobController</name>
    <message>
        <source>保存G代码</source>
        <translation>G코드 저장</translation>
    </message>
    <message>
        <source>G代码 (*.nc *.gcode)</source>
        <translation>G코드 (*.nc *.gcode)</translation>
    </message>
    <message>
        <source>保存失败!</source>
        <translation>저장 실패!</translation>
    </message>
    <message>
        <source>请在滚轴界面检查相关参数再运行!</source>
        <translation>실행하기 전에 로터리 창에서 설정을 확인하세요!</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>生成G代码失败!</source>
        <translation>G코드 생성 실패!</translation>
    </message>
    <message>
        <source>图层 %1: X %2..%3, Y %4..%5 mm</source>
        <translation>레이어 %1: X %2..%3, Y %4..%5 mm</translation>
    </message>
    <message>
        <source>……还有 %1 个</source>
        <translation>…외 %1개</translation>
    </message>
    <message>
        <source>%1 个图形超出工作区域 (%2 × %3 mm),机器可能撞到限位或烧到台面以外:
%4

是否继续?</source>
        <translation>%1개의 도형이 작업 영역(%2 × %3 mm)을 벗어났습니다. 기기가 리밋에 부딪히거나 작업대 밖을 태울 수 있습니다:
%4

계속하시겠습니까?</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>当前位置未知,请先连接设备!</source>
        <translation>헤드 위치를 알 수 없습니다. 먼저 기기를 연결하세요!</translation>
    </message>
    <message>
        <source>%1: 需要 %2 字节/秒, 最快 %3 mm/min</source>
        <translation>%1: %2바이트/초 필요, 최대 %3 mm/min</translation>
    </message>
    <message>
        <source>串口每秒只能传输 %1 字节, 此速度下光栅数据传不完:</source>
        <translation>시리얼 연결은 초당 %1바이트만 전송합니다. 이 속도에서는 래스터 데이터가 따라가지 못합니다:</translation>
    </message>
    <message>
        <source>降速</source>
        <translation>속도 낮추기</translation>
    </message>
    <message>
        <source>仍然运行</source>
        <translation>그래도 실행</translation>
    </message>
</context>
<context>
    <name>GeRenZhongXin</name>
    <message>
        <source>个人中心</source>
        <translation>내 계정</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>닉네임:</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>이메일:</translation>
    </message>
    <message>
        <source>余额：</source>
        <translation>잔액:</translation>
    </message>
    <message>
        <source>充值金额：</source>
        <translation>충전 금액:</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>충전</translation>
    </message>
    <message>
        <source>模式名称：</source>
        <translation>모드 이름:</translation>
    </message>
    <message>
        <source>保存模式</source>
        <translation>모드 저장</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>요청 실패</translation>
    </message>
    <message>
        <source>请输入模式名称</source>
        <translation>모드 이름을 입력하세요</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>저장되었습니다</translation>
    </message>
</context>
<context>
    <name>GengXinXiaZai</name>
    <message>
        <source>版本更新说明</source>
        <translation>업데이트 내용</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>下载完成</source>
        <translation>다운로드 완료</translation>
    </message>
    <message>
        <source>稍后退出</source>
        <translation>나중에 종료</translation>
    </message>
    <message>
        <source>立即退出</source>
        <translation>지금 종료</translation>
    </message>
    <message>
        <source>请退出安装</source>
        <translation>설치하려면 프로그램을 종료하세요</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
</context>
<context>
    <name>GeometryActions</name>
    <message>
        <source>偏移...</source>
        <translation>오프셋...</translation>
    </message>
    <message>
        <source>焊接</source>
        <translation>용접</translation>
    </message>
    <message>
        <source>修剪</source>
        <translation>빼기</translation>
    </message>
    <message>
        <source>相交</source>
        <translation>교차</translation>
    </message>
    <message>
        <source>排除</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>从最下层的图形中减去其余图形</source>
        <translation>맨 아래 도형에서 나머지 도형을 뺍니다</translation>
    </message>
</context>
<context>
    <name>Gun_Zhou</name>
    <message>
        <source>滚轴</source>
        <translation>로터리</translation>
    </message>
    <message>
        <source>滚轴设置</source>
        <translation>로터리 설정</translation>
    </message>
    <message>
        <source>滚轴模式：</source>
        <translation>로터리 모드:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>周长</source>
        <translation>둘레</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>지름</translation>
    </message>
    <message>
        <source>旋转轴：</source>
        <translation>회전축:</translation>
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
        <translation>둘레 (mm):</translation>
    </message>
    <message>
        <source>直径(mm)：</source>
        <translation>지름 (mm):</translation>
    </message>
    <message>
        <source>每圈行程：</source>
        <translation>회전당 이동량:</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>HttpThread</name>
    <message>
        <source>参数更改失败</source>
        <translation>설정 변경 실패</translation>
    </message>
    <message>
        <source>上一个文件仍在上传</source>
        <translation>이전 파일이 아직 업로드 중입니다</translation>
    </message>
    <message>
        <source>无法读取文件: %1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>上传已取消</source>
        <translation>업로드가 취소되었습니다</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>업로드 실패: %1</translation>
    </message>
</context>
<context>
    <name>ImportActions</name>
    <message>
        <source>请先选择一张位图!</source>
        <translation>먼저 비트맵 하나를 선택하세요!</translation>
    </message>
    <message>
        <source>位图中没有可描摹的轮廓!</source>
        <translation>비트맵에 트레이스할 윤곽이 없습니다!</translation>
    </message>
    <message>
        <source>按颜色分图层</source>
        <translation>색상별 레이어</translation>
    </message>
    <message>
        <source>导入时每种颜色放到单独的图层</source>
        <translation>가져올 때 색상마다 별도의 레이어에 넣습니다</translation>
    </message>
</context>
<context>
    <name>JiaoZhun</name>
    <message>
        <source>校准摄像头</source>
        <translation>카메라 보정</translation>
    </message>
    <message>
        <source>雕刻完成后点击&quot;下一步&quot;拍照,然后依次点击照片上四个十字的中心</source>
        <translation>마킹이 끝나면 &quot;다음&quot;을 눌러 사진을 찍은 후, 사진 속 네 십자의 중심을 차례로 클릭하세요</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>已选择 %1/%2 个点</source>
        <translation>%1/%2개 점 선택됨</translation>
    </message>
</context>
<context>
    <name>Jk_deng_lu</name>
    <message>
        <source>登录</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>邮箱：</source>
        <translation>이메일:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>비밀번호:</translation>
    </message>
    <message>
        <source>验证码：</source>
        <translation>인증 코드:</translation>
    </message>
    <message>
        <source>获取验证码</source>
        <translation>코드 받기</translation>
    </message>
    <message>
        <source>验证码登录</source>
        <translation>코드로 로그인</translation>
    </message>
    <message>
        <source>记住密码</source>
        <translation>비밀번호 저장</translation>
    </message>
    <message>
        <source>注册</source>
        <translation>회원가입</translation>
    </message>
    <message>
        <source>昵称：</source>
        <translation>닉네임:</translation>
    </message>
    <message>
        <source>确认密码：</source>
        <translation>비밀번호 확인:</translation>
    </message>
    <message>
        <source>忘记密码</source>
        <translation>비밀번호 찾기</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>새 비밀번호:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>요청 실패</translation>
    </message>
    <message>
        <source>请输入邮箱</source>
        <translation>이메일을 입력하세요</translation>
    </message>
    <message>
        <source>验证码已发送</source>
        <translation>인증 코드를 보냈습니다</translation>
    </message>
    <message>
        <source>请输入邮箱和验证码</source>
        <translation>이메일과 인증 코드를 입력하세요</translation>
    </message>
    <message>
        <source>请输入邮箱和密码</source>
        <translation>이메일과 비밀번호를 입력하세요</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>모든 항목을 입력하세요</translation>
    </message>
    <message>
        <source>两次密码不一致</source>
        <translation>비밀번호가 일치하지 않습니다</translation>
    </message>
    <message>
        <source>注册成功</source>
        <translation>가입되었습니다</translation>
    </message>
    <message>
        <source>修改成功,请去登录！</source>
        <translation>비밀번호가 변경되었습니다. 로그인하세요!</translation>
    </message>
</context>
<context>
    <name>Jk_dxf</name>
    <message>
        <source>无法打开文件</source>
        <translation>파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>DXF 文件无法读取</source>
        <translation>DXF 파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>DXF 坐标超出范围</source>
        <translation>DXF 좌표가 범위를 벗어났습니다</translation>
    </message>
    <message>
        <source>DXF 文件中没有可导入的图形</source>
        <translation>DXF 파일에 가져올 도형이 없습니다</translation>
    </message>
</context>
<context>
    <name>Jk_gcode</name>
    <message>
        <source>滚轴参数无效</source>
        <translation>로터리 설정이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>当前位置未知</source>
        <translation>헤드 위치를 알 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Jk_wen_zi2</name>
    <message>
        <source>文字</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>文字设置</source>
        <translation>텍스트 설정</translation>
    </message>
    <message>
        <source>请输入文字</source>
        <translation>텍스트를 입력하세요</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>글꼴:</translation>
    </message>
    <message>
        <source>字号(mm)：</source>
        <translation>크기 (mm):</translation>
    </message>
    <message>
        <source>粗体</source>
        <translation>굵게</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>기울임꼴</translation>
    </message>
    <message>
        <source>字间距(mm)：</source>
        <translation>자간 (mm):</translation>
    </message>
    <message>
        <source>行间距(mm)：</source>
        <translation>줄 간격 (mm):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>JobPreviewDialog</name>
    <message>
        <source>预览</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>预计时间：</source>
        <translation>예상 시간:</translation>
    </message>
    <message>
        <source>G代码行数：</source>
        <translation>G코드 줄 수:</translation>
    </message>
    <message>
        <source>雕刻长度：</source>
        <translation>가공 거리:</translation>
    </message>
    <message>
        <source>空移长度：</source>
        <translation>이동 거리:</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>含加速与转角减速；只按速度：%1</source>
        <translation>가속과 코너 감속 포함; 속도만으로는: %1</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>(省 %1)</source>
        <translation>(%1 절약)</translation>
    </message>
    <message>
        <source>优化切割顺序比按绘制顺序少空移 %1</source>
        <translation>최적화된 컷 순서는 그린 순서보다 이동 거리가 %1 짧습니다</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>일시정지</translation>
    </message>
    <message>
        <source>尚未读到机器的设置，按控制器出厂设置估算；连接机器后更准确</source>
        <translation>아직 기계 설정을 읽지 못해 컨트롤러 출고 설정으로 추정; 기계를 연결하면 더 정확</translation>
    </message>
</context>
<context>
    <name>JobTimeDisplay</name>
    <message>
        <source>剩余 %1</source>
        <translation>남은 시간 %1</translation>
    </message>
</context>
<context>
    <name>LayerRowsPanel</name>
    <message>
        <source>图层</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>MachineController</name>
    <message>
        <source>已连接</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>일시정지</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>设备触发警告!</source>
        <translation>기기에서 알람이 발생했습니다!</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>먼저 기기를 연결하세요!</translation>
    </message>
    <message>
        <source>设备运行中禁用此功能!</source>
        <translation>기기 작동 중에는 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>테스트 발사</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP 주소를 입력하세요!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>기기가 각인 중입니다. 지금은 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Files (*.nc);;Files (*.gcode)</source>
        <translation>파일 (*.nc);;파일 (*.gcode)</translation>
    </message>
    <message>
        <source>请选择或输入串口!</source>
        <translation>시리얼 포트를 선택하거나 입력하세요!</translation>
    </message>
    <message>
        <source>无法打开串口 %1:%2</source>
        <translation>시리얼 포트 %1 열기 실패: %2</translation>
    </message>
    <message>
        <source>串口 %1 上的设备没有作为GRBL控制器应答!</source>
        <translation>시리얼 포트 %1의 장치가 GRBL 컨트롤러로 응답하지 않았습니다!</translation>
    </message>
    <message>
        <source>串口 %1 在连接时出错:%2</source>
        <translation>시리얼 포트 %1 연결 중 오류: %2</translation>
    </message>
    <message>
        <source>已连接到串口 %1</source>
        <translation>시리얼 포트 %1에 연결됨</translation>
    </message>
    <message>
        <source>已通过WiFi连接到 %1</source>
        <translation>WiFi로 %1에 연결됨</translation>
    </message>
    <message>
        <source>WiFi连接已断开</source>
        <translation>WiFi 연결 종료됨</translation>
    </message>
    <message>
        <source>WiFi连接意外断开!</source>
        <translation>WiFi 연결이 끊어졌습니다!</translation>
    </message>
    <message>
        <source>当前位置未知,请等待设备上报位置!</source>
        <translation>헤드 위치를 알 수 없습니다. 기기가 위치를 보고할 때까지 기다리세요!</translation>
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
        <translation>연결</translation>
    </message>
    <message>
        <source>归位</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>원점 이동</translation>
    </message>
    <message>
        <source>设置原点</source>
        <translation>원점 설정</translation>
    </message>
    <message>
        <source>清除原点</source>
        <translation>원점 해제</translation>
    </message>
    <message>
        <source>移动到</source>
        <translation>위치 이동</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>일시정지</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>运行文件</source>
        <translation>파일 실행</translation>
    </message>
    <message>
        <source>走边框</source>
        <translation>프레임</translation>
    </message>
    <message>
        <source>点火</source>
        <translation>테스트 발사</translation>
    </message>
    <message>
        <source>起点</source>
        <translation>시작점</translation>
    </message>
    <message>
        <source>任务从哪里开始</source>
        <translation>작업을 시작할 위치</translation>
    </message>
    <message>
        <source>绝对坐标</source>
        <translation>절대 좌표</translation>
    </message>
    <message>
        <source>当前位置</source>
        <translation>현재 위치</translation>
    </message>
    <message>
        <source>用户原点</source>
        <translation>사용자 원점</translation>
    </message>
    <message>
        <source>图形的哪个点放到起点</source>
        <translation>디자인의 어느 점을 시작점에 둘지</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>上中</source>
        <translation>위</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>左中</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>中心</source>
        <translation>중앙</translation>
    </message>
    <message>
        <source>右中</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>下中</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>오른쪽 아래</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
</context>
<context>
    <name>MoShiYuLan</name>
    <message>
        <source>模式预览</source>
        <translation>모드 미리보기</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>모드:</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>디더링</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>윤곽</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>그레이스케일</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>네거티브</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>移动</source>
        <translation>이동</translation>
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
        <translation>너비 (mm):</translation>
    </message>
    <message>
        <source>高(mm)：</source>
        <translation>높이 (mm):</translation>
    </message>
    <message>
        <source>旋转(°)：</source>
        <translation>회전 (°):</translation>
    </message>
    <message>
        <source>锁定比例</source>
        <translation>비율 고정</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>OffsetDialog</name>
    <message>
        <source>偏移</source>
        <translation>오프셋</translation>
    </message>
    <message>
        <source>距离(mm)：</source>
        <translation>거리 (mm):</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>바깥쪽</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>안쪽</translation>
    </message>
    <message>
        <source>拐角：</source>
        <translation>모서리:</translation>
    </message>
    <message>
        <source>圆角</source>
        <translation>둥글게</translation>
    </message>
    <message>
        <source>尖角</source>
        <translation>뾰족하게</translation>
    </message>
    <message>
        <source>方角</source>
        <translation>각지게</translation>
    </message>
    <message>
        <source>保留原图形</source>
        <translation>원본 도형 유지</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>OpenDispatch</name>
    <message>
        <source>图片太大,无法打开!</source>
        <translation>이미지가 너무 커서 열 수 없습니다!</translation>
    </message>
    <message>
        <source>图片无法读取!</source>
        <translation>이미지를 읽을 수 없습니다!</translation>
    </message>
</context>
<context>
    <name>ParameterLibrary</name>
    <message>
        <source>不是有效的JSON:%1</source>
        <translation>올바른 JSON이 아닙니다: %1</translation>
    </message>
    <message>
        <source>不是参数库文件</source>
        <translation>파라미터 라이브러리 파일이 아닙니다</translation>
    </message>
    <message>
        <source>参数库版本不支持</source>
        <translation>지원하지 않는 라이브러리 버전입니다</translation>
    </message>
    <message>
        <source>第%1项的%2无效</source>
        <translation>%1번 항목: %2 값이 잘못되었습니다</translation>
    </message>
    <message>
        <source>无法写入文件:%1</source>
        <translation>파일을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>无法读取文件:%1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>ParameterLibraryDialog</name>
    <message>
        <source>参数库</source>
        <translation>파라미터 라이브러리</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>재료:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>厚度：</source>
        <translation>두께:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>从当前图层添加</source>
        <translation>레이어에서 추가</translation>
    </message>
    <message>
        <source>应用到当前图层</source>
        <translation>레이어에 적용</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>参数库 (*.json)</source>
        <translation>파라미터 라이브러리 (*.json)</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>파라미터 라이브러리를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>请先选择一个图层</source>
        <translation>먼저 레이어를 선택하세요</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>이름을 입력하세요</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>已有同名预设,是否替换?</source>
        <translation>같은 이름의 프리셋이 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>请先选择一个预设</source>
        <translation>먼저 프리셋을 선택하세요</translation>
    </message>
    <message>
        <source>已有同名预设</source>
        <translation>같은 이름의 프리셋이 있습니다</translation>
    </message>
    <message>
        <source>导入失败:%1</source>
        <translation>가져오기 실패: %1</translation>
    </message>
    <message>
        <source>已添加%1个预设,替换%2个</source>
        <translation>프리셋 %1개 추가, %2개 교체</translation>
    </message>
    <message>
        <source>导出失败:%1</source>
        <translation>내보내기 실패: %1</translation>
    </message>
</context>
<context>
    <name>PhotoPanel</name>
    <message>
        <source>拍照</source>
        <translation>사진 촬영</translation>
    </message>
    <message>
        <source>照片透明度</source>
        <translation>사진 투명도</translation>
    </message>
    <message>
        <source>隐藏照片</source>
        <translation>사진 숨기기</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ProductionController</name>
    <message>
        <source>参数库</source>
        <translation>파라미터 라이브러리</translation>
    </message>
    <message>
        <source>材料测试卡</source>
        <translation>재료 테스트 카드</translation>
    </message>
    <message>
        <source>参数库无法读取:%1</source>
        <translation>파라미터 라이브러리를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>已存入参数库:%1</source>
        <translation>파라미터 라이브러리에 저장됨: %1</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>기기가 각인 중입니다. 지금은 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>没有数据，禁止保存!</source>
        <translation>저장할 내용이 없습니다!</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>Files (*.lumitra)</source>
        <translation>파일 (*.lumitra)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</source>
        <translation>이미지 (*.png *.bmp *.jpg *.jpeg *.lumitra *.dxf *.svg))</translation>
    </message>
    <message>
        <source>保存失败: %1
%2</source>
        <translation>저장 실패: %1
%2</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>파일이 존재하지 않습니다: %1</translation>
    </message>
    <message>
        <source>不支持的文件格式: %1</source>
        <translation>지원하지 않는 파일 형식: %1</translation>
    </message>
    <message>
        <source>文件无法导入,里面没有可用的图形: %1</source>
        <translation>파일을 가져올 수 없습니다. 사용할 수 있는 도형이 없습니다: %1</translation>
    </message>
    <message>
        <source>无法打开文件: %1</source>
        <translation>파일을 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>文件已损坏或不是项目文件,无法打开: %1</source>
        <translation>파일이 손상되었거나 프로젝트 파일이 아니어서 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>文件已损坏,只打开了其中完整的部分: %1</source>
        <translation>파일이 손상되어 온전한 부분만 열었습니다: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>最近打开</source>
        <translation>최근 파일</translation>
    </message>
    <message>
        <source>(无)</source>
        <translation>(없음)</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>목록 지우기</translation>
    </message>
</context>
<context>
    <name>ResumeDialog</name>
    <message>
        <source>继续作业</source>
        <translation>작업 재개</translation>
    </message>
    <message>
        <source>从第几行继续:</source>
        <translation>재개할 줄:</translation>
    </message>
    <message>
        <source>控制器已复位:请先归位或重新设置原点。</source>
        <translation>컨트롤러가 리셋되었습니다. 먼저 홈으로 이동하거나 원점을 다시 설정하세요.</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>作业中断。从第 %1 行继续?</source>
        <translation>작업이 중단되었습니다. %1번째 줄부터 재개하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>无法继续作业。</source>
        <translation>작업을 재개할 수 없습니다.</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>기기가 각인 중입니다. 지금은 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,再归位或重新设置原点。</source>
        <translation>기기와의 연결이 끊어졌습니다. 기기의 전원이 꺼졌거나 아직 작업 중일 수 있습니다. 먼저 기기가 멈췄는지 확인한 다음 원점 복귀하거나 원점을 다시 설정하세요.</translation>
    </message>
    <message>
        <source>作业文件已被新的作业替换,无法继续。</source>
        <translation>작업 파일이 새 작업으로 바뀌어 이어서 할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>SdFileManager</name>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD 카드 파일</translation>
    </message>
    <message>
        <source>设备：</source>
        <translation>보드:</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>总容量：</source>
        <translation>전체 용량:</translation>
    </message>
    <message>
        <source>已用：</source>
        <translation>사용:</translation>
    </message>
    <message>
        <source>可用：</source>
        <translation>여유:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로고침</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>업로드</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>运行</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>选择上传文件</source>
        <translation>업로드할 파일 선택</translation>
    </message>
    <message>
        <source>G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)</source>
        <translation>G코드 파일 (*.nc *.gcode *.txt);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>文件 %1 已存在，是否覆盖?</source>
        <translation>%1 파일이 이미 카드에 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>确定删除文件 %1 吗?</source>
        <translation>%1 파일을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>确定运行文件 %1 吗?</source>
        <translation>%1 파일을 실행하시겠습니까?</translation>
    </message>
    <message>
        <source>读取SD卡文件列表失败</source>
        <translation>카드 파일 목록을 읽지 못했습니다</translation>
    </message>
    <message>
        <source>删除文件失败</source>
        <translation>파일 삭제 실패</translation>
    </message>
    <message>
        <source>运行文件失败</source>
        <translation>파일 실행 실패</translation>
    </message>
    <message>
        <source>上传文件失败</source>
        <translation>파일 업로드 실패</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Shang_Chuan</name>
    <message>
        <source>上传素材</source>
        <translation>디자인 업로드</translation>
    </message>
    <message>
        <source>标题：</source>
        <translation>제목:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>가격:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>파일:</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>图片：</source>
        <translation>이미지:</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>카테고리:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>재료:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>태그:</translation>
    </message>
    <message>
        <source>详情：</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>업로드</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>요청 실패</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>먼저 로그인하세요</translation>
    </message>
    <message>
        <source>请填写完整</source>
        <translation>모든 항목을 입력하세요</translation>
    </message>
    <message>
        <source>上传成功</source>
        <translation>업로드되었습니다</translation>
    </message>
</context>
<context>
    <name>Su_Cai_Xiang_Qing</name>
    <message>
        <source>素材详情</source>
        <translation>디자인 상세</translation>
    </message>
    <message>
        <source>购买</source>
        <translation>구매</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>요청 실패</translation>
    </message>
    <message>
        <source>没有发现素材数据</source>
        <translation>디자인 데이터를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>请先登录</source>
        <translation>먼저 로그인하세요</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>是否购买素材</source>
        <translation>이 디자인을 구매하시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>素材购买失败,请重新购买!</source>
        <translation>디자인 구매에 실패했습니다. 다시 구매하세요!</translation>
    </message>
    <message>
        <source>素材购买成功!</source>
        <translation>디자인을 구매했습니다!</translation>
    </message>
</context>
<context>
    <name>SvgImport</name>
    <message>
        <source>SVG 文件嵌套层数过多</source>
        <translation>SVG 파일의 중첩이 너무 깊습니다</translation>
    </message>
    <message>
        <source>SVG 文件格式错误</source>
        <translation>SVG 파일 형식이 잘못되었습니다</translation>
    </message>
    <message>
        <source>SVG 文件为空</source>
        <translation>SVG 파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>SVG 文件图形数量过多</source>
        <translation>SVG 파일의 도형이 너무 많습니다</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>SVG 文件过大</source>
        <translation>SVG 파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。</source>
        <translation>텍스트 %1개를 가져오지 않았습니다. 그리기 프로그램에서 텍스트를 패스로 변환한 후 가져오세요.</translation>
    </message>
</context>
<context>
    <name>TestCard</name>
    <message>
        <source>行数和列数至少为1</source>
        <translation>행과 열은 1 이상이어야 합니다</translation>
    </message>
    <message>
        <source>功率须在0到100之间</source>
        <translation>파워는 0에서 100 사이여야 합니다</translation>
    </message>
    <message>
        <source>速度至少为5</source>
        <translation>속도는 5 이상이어야 합니다</translation>
    </message>
    <message>
        <source>尺寸或次数无效</source>
        <translation>크기 또는 반복 횟수가 잘못되었습니다</translation>
    </message>
</context>
<context>
    <name>TestCardDialog</name>
    <message>
        <source>材料测试卡</source>
        <translation>재료 테스트 카드</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>파워 (%):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>속도 (mm/min):</translation>
    </message>
    <message>
        <source>行 × 列：</source>
        <translation>행 × 열:</translation>
    </message>
    <message>
        <source>方块 / 间距：</source>
        <translation>사각형 / 간격:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>模式 / 次数：</source>
        <translation>모드 / 반복 횟수:</translation>
    </message>
    <message>
        <source>线条</source>
        <translation>라인</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>채우기</translation>
    </message>
    <message>
        <source>生成</source>
        <translation>생성</translation>
    </message>
    <message>
        <source>最佳方块</source>
        <translation>최적 사각형</translation>
    </message>
    <message>
        <source>最佳 行 / 列：</source>
        <translation>최적 행 / 열:</translation>
    </message>
    <message>
        <source>材料 / 厚度：</source>
        <translation>재료 / 두께:</translation>
    </message>
    <message>
        <source>存入参数库</source>
        <translation>라이브러리에 저장</translation>
    </message>
    <message>
        <source>%1个方块超过%2个图层,将分成%3页</source>
        <translation>사각형 %1개가 레이어 %2개를 넘어 %3페이지로 나뉩니다</translation>
    </message>
    <message>
        <source>%1个方块,1页</source>
        <translation>사각형 %1개, 1페이지</translation>
    </message>
    <message>
        <source>请输入材料</source>
        <translation>재료를 입력하세요</translation>
    </message>
</context>
<context>
    <name>TuCeng</name>
    <message>
        <source>线条</source>
        <translation>라인</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>채우기</translation>
    </message>
    <message>
        <source>交叉填充</source>
        <translation>교차 채우기</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>抖动</source>
        <translation>디더링</translation>
    </message>
    <message>
        <source>轮廓</source>
        <translation>윤곽</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>그레이스케일</translation>
    </message>
    <message>
        <source>负向</source>
        <translation>네거티브</translation>
    </message>
    <message>
        <source>负像</source>
        <translation>네거티브</translation>
    </message>
</context>
<context>
    <name>TuCengItem2</name>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>上移图层</source>
        <translation>레이어 위로</translation>
    </message>
    <message>
        <source>下移图层</source>
        <translation>레이어 아래로</translation>
    </message>
</context>
<context>
    <name>Tu_Ceng_Zhi</name>
    <message>
        <source>图层参数</source>
        <translation>레이어 설정</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>모드:</translation>
    </message>
    <message>
        <source>名称：</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>填充方向(°)：</source>
        <translation>채우기 각도 (°):</translation>
    </message>
    <message>
        <source>填充间距(mm)：</source>
        <translation>채우기 간격 (mm):</translation>
    </message>
    <message>
        <source>过扫描mm)：</source>
        <translation>오버스캔 (mm):</translation>
    </message>
    <message>
        <source>速度(mm/min)：</source>
        <translation>속도 (mm/min):</translation>
    </message>
    <message>
        <source>功率(%)：</source>
        <translation>파워 (%):</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>반복 횟수</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>单向</source>
        <translation>단방향</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>曲线按 0.01 毫米精度切割</source>
        <translation>곡선을 0.01mm 정밀도로 컷합니다</translation>
    </message>
    <message>
        <source>精细曲线</source>
        <translation>정밀 곡선</translation>
    </message>
    <message>
        <source>切缝(mm)：</source>
        <translation>커프 (mm):</translation>
    </message>
    <message>
        <source>切割线宽：外轮廓向外、孔向内各偏移一半</source>
        <translation>컷 폭: 바깥 윤곽은 바깥쪽으로, 구멍은 안쪽으로 절반씩 오프셋합니다</translation>
    </message>
    <message>
        <source>切割顺序：</source>
        <translation>컷 순서:</translation>
    </message>
    <message>
        <source>按绘制</source>
        <translation>그린 순서</translation>
    </message>
    <message>
        <source>优化</source>
        <translation>최적화</translation>
    </message>
</context>
<context>
    <name>WIFI_She_Zhi</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi 설정</translation>
    </message>
    <message>
        <source>设备网络信息</source>
        <translation>보드 네트워크 정보</translation>
    </message>
    <message>
        <source>模式：</source>
        <translation>모드:</translation>
    </message>
    <message>
        <source>网络名称：</source>
        <translation>네트워크 이름:</translation>
    </message>
    <message>
        <source>状态：</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>IP地址：</source>
        <translation>IP 주소:</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로고침</translation>
    </message>
    <message>
        <source>连接路由器(STA模式)</source>
        <translation>공유기 연결 (STA 모드)</translation>
    </message>
    <message>
        <source>WiFi名称：</source>
        <translation>WiFi 이름:</translation>
    </message>
    <message>
        <source>WiFi密码：</source>
        <translation>WiFi 비밀번호:</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>비밀번호 표시</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>设备热点(AP模式)</source>
        <translation>보드 핫스팟 (AP 모드)</translation>
    </message>
    <message>
        <source>设备地址 192.168.0.1</source>
        <translation>보드 주소 192.168.0.1</translation>
    </message>
    <message>
        <source>切换到AP模式</source>
        <translation>AP 모드로 전환</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>STA模式(连接路由器)</source>
        <translation>STA 모드 (공유기 연결)</translation>
    </message>
    <message>
        <source>AP模式(设备热点)</source>
        <translation>AP 모드 (보드 핫스팟)</translation>
    </message>
    <message>
        <source>密码或账号不能为空!</source>
        <translation>네트워크 이름과 비밀번호를 입력하세요!</translation>
    </message>
    <message>
        <source>密码长度不匹配</source>
        <translation>비밀번호는 8~90자여야 합니다</translation>
    </message>
    <message>
        <source>账号或密码不能包含!,？,~,$符号</source>
        <translation>이름과 비밀번호에는 !, ?, ~, $ 기호를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>目前仅支持英文,数字,符号输入</source>
        <translation>영문, 숫자, 기호만 입력할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>文件</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>保存G代码</source>
        <translation>G코드 저장</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>滚轴</source>
        <translation>로터리</translation>
    </message>
    <message>
        <source>旋转角度：</source>
        <translation>회전 각도:</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>没有可预览的图形!</source>
        <translation>미리 볼 도형이 없습니다!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>먼저 기기를 연결하세요!</translation>
    </message>
    <message>
        <source>设备雕刻中,暂时停止使用!</source>
        <translation>기기가 각인 중입니다. 지금은 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>新建页面</source>
        <translation>새 페이지</translation>
    </message>
    <message>
        <source>图像模式预览</source>
        <translation>이미지 모드 미리보기</translation>
    </message>
    <message>
        <source>描摹位图</source>
        <translation>비트맵 트레이스</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>기기</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>제목 없음</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>创作未保存,是否立即退出</source>
        <translation>디자인이 저장되지 않았습니다. 지금 종료하시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>도구</translation>
    </message>
</context>
<context>
    <name>WifiLinkController</name>
    <message>
        <source>请先断开串口连接!</source>
        <translation>먼저 시리얼 연결을 해제하세요!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP 주소를 입력하세요!</translation>
    </message>
    <message>
        <source>端口号无效: %1</source>
        <translation>잘못된 포트: %1</translation>
    </message>
    <message>
        <source>无法通过WiFi连接到 %1:%2,请检查地址和设备电源!</source>
        <translation>WiFi로 %1:%2에 연결할 수 없습니다. 주소와 보드 전원을 확인하세요!</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>먼저 기기를 연결하세요!</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>업로드</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>正在上传 %1 (%2 MB)</source>
        <translation>%1 업로드 중 (%2 MB)</translation>
    </message>
    <message>
        <source>正在上传 %1: %2 / %3 MB</source>
        <translation>%1 업로드 중: %2 / %3 MB</translation>
    </message>
    <message>
        <source>上传失败: %1</source>
        <translation>업로드 실패: %1</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>设备未能开始作业: %1</source>
        <translation>기기가 작업을 시작하지 못했습니다: %1</translation>
    </message>
</context>
<context>
    <name>WifiToolsController</name>
    <message>
        <source>WiFi设置</source>
        <translation>WiFi 설정</translation>
    </message>
    <message>
        <source>SD卡文件管理</source>
        <translation>SD 카드 파일</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>보드 검색</translation>
    </message>
    <message>
        <source>请先连接设备!</source>
        <translation>먼저 기기를 연결하세요!</translation>
    </message>
    <message>
        <source>IP不能为空!</source>
        <translation>IP 주소를 입력하세요!</translation>
    </message>
</context>
<context>
    <name>jk_su_cai</name>
    <message>
        <source>素材商城</source>
        <translation>디자인 스토어</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>分类：</source>
        <translation>카테고리:</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>파일:</translation>
    </message>
    <message>
        <source>材料：</source>
        <translation>재료:</translation>
    </message>
    <message>
        <source>价格：</source>
        <translation>가격:</translation>
    </message>
    <message>
        <source>机型：</source>
        <translation>기종:</translation>
    </message>
    <message>
        <source>功率：</source>
        <translation>파워:</translation>
    </message>
    <message>
        <source>标签：</source>
        <translation>태그:</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>요청 실패</translation>
    </message>
</context>
<context>
    <name>lumitra::Barcode</name>
    <message>
        <source>尺寸必须大于 0!</source>
        <translation>크기는 0보다 커야 합니다!</translation>
    </message>
    <message>
        <source>请输入内容!</source>
        <translation>내용을 입력하세요!</translation>
    </message>
    <message>
        <source>条码库无法使用!</source>
        <translation>바코드 라이브러리를 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>EAN-13 需要 12 或 13 位数字!</source>
        <translation>EAN-13에는 12자리 또는 13자리 숫자가 필요합니다!</translation>
    </message>
    <message>
        <source>UPC-A 需要 11 或 12 位数字!</source>
        <translation>UPC-A에는 11자리 또는 12자리 숫자가 필요합니다!</translation>
    </message>
</context>
<context>
    <name>lumitra::LanguageController</name>
    <message>
        <source>稍后重启</source>
        <translation>나중에 재시작</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>语言修改成功,请重启软件!</source>
        <translation>언어가 변경되었습니다. 프로그램을 다시 시작하세요!</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
</context>
</TS>
