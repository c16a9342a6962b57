<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>OperatorClient::AlarmExport</name>
    <message>
        <source>The table cannot be written.</source>
        <translation>无法写入表格。</translation>
    </message>
    <message>
        <source>The file cannot be saved there.</source>
        <translation>无法保存到该位置。</translation>
    </message>
</context>
<context>
    <name>OperatorClient::AlarmImport</name>
    <message>
        <source>The file has no columns of alarms.</source>
        <translation>文件中没有报警数据列。</translation>
    </message>
</context>
<context>
    <name>OperatorClient::AlarmPage</name>
    <message>
        <source>Alarms</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Filter the alarms</source>
        <translation>筛选报警</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>导出进度</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>No spreadsheet application was found.</source>
        <translation>未找到电子表格应用程序。</translation>
    </message>
    <message>
        <source>Export the alarms</source>
        <translation>导出报警</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
是否替换？</translation>
    </message>
    <message>
        <source>Storing the file…</source>
        <translation>正在保存文件…</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>The alarms were exported to %1.</source>
        <translation>报警已导出到 %1。</translation>
    </message>
    <message>
        <source>The export was cancelled; no file was written.</source>
        <translation>导出已取消，未写入文件。</translation>
    </message>
    <message>
        <source>Import alarms</source>
        <translation>导入报警</translation>
    </message>
    <message>
        <source>Workbooks (*.xlsx *.xls *.csv)</source>
        <translation>工作簿 (*.xlsx *.xls *.csv)</translation>
    </message>
    <message>
        <source>lens covered</source>
        <translation>镜头遮挡</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alarm(s)</source>
        <translation>
            <numerusform>%Ln 条报警</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln alarm(s)</source>
        <translation>
            <numerusform>%1 / %Ln 条报警</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln alarm(s) imported.</source>
        <translation>
            <numerusform>已导入 %Ln 条报警。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln row(s) left out.</source>
        <translation>
            <numerusform>已略过 %Ln 行。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OperatorClient::AlarmRecord</name>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Car park</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Corridor</source>
        <translation>走廊</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>出入口</translation>
    </message>
    <message>
        <source>Junction</source>
        <translation>路口</translation>
    </message>
    <message>
        <source>Perimeter</source>
        <translation>周界</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>仓库</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>移动侦测</translation>
    </message>
    <message>
        <source>Line crossed</source>
        <translation>越界侦测</translation>
    </message>
    <message>
        <source>Object left behind</source>
        <translation>物品遗留</translation>
    </message>
    <message>
        <source>Picture lost</source>
        <translation>视频丢失</translation>
    </message>
    <message>
        <source>Lens covered</source>
        <translation>镜头遮挡</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>False alarm</source>
        <translation>误报</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>未处理</translation>
    </message>
    <message>
        <source>Guard sent</source>
        <translation>已派保安</translation>
    </message>
    <message>
        <source>Headlights, not a person</source>
        <translation>车灯，非人员</translation>
    </message>
    <message>
        <source>See the record of the day before</source>
        <translation>参见前一天记录</translation>
    </message>
</context>
<context>
    <name>OperatorClient::CameraWall</name>
    <message>
        <source>Video wall</source>
        <translation>电视墙</translation>
    </message>
    <message>
        <source>The wall is built from widgets now</source>
        <translation>电视墙现由控件构成</translation>
    </message>
    <message>
        <source>The wall is drawn in a scene now</source>
        <translation>电视墙现由场景绘制</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>屏幕 %1</translation>
    </message>
    <message>
        <source>Grid of %1 rows and %2 columns; screens keep their places</source>
        <translation>网格 %1 行 %2 列，屏幕位置不变</translation>
    </message>
    <message>
        <source>Screen %1: window %2 opened at %3</source>
        <translation>屏幕 %1：窗口 %2 已在 %3 打开</translation>
    </message>
    <message>
        <source>Screen %1, window %2 shows %3</source>
        <translation>屏幕 %1 窗口 %2 显示 %3</translation>
    </message>
    <message>
        <source>Screen %1: window %2 closed</source>
        <translation>屏幕 %1：窗口 %2 已关闭</translation>
    </message>
    <message numerus="yes">
        <source>Screen %1: %n window(s) closed</source>
        <translation>
            <numerusform>屏幕 %1：已关闭 %n 个窗口</numerusform>
        </translation>
    </message>
    <message>
        <source>No window is selected</source>
        <translation>未选中窗口</translation>
    </message>
    <message>
        <source>Screen %1: windows %2 raised</source>
        <translation>屏幕 %1：窗口 %2 已置顶</translation>
    </message>
    <message>
        <source>Screen %1: windows %2 lowered</source>
        <translation>屏幕 %1：窗口 %2 已置底</translation>
    </message>
    <message>
        <source>Screen %1: windows snapped to its cells</source>
        <translation>屏幕 %1：窗口已自适应到单元格</translation>
    </message>
</context>
<context>
    <name>OperatorClient::DetailsPanel</name>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
</context>
<context>
    <name>OperatorClient::DevicePage</name>
    <message>
        <source>Weak</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>强</translation>
    </message>
    <message>
        <source>Device and account</source>
        <translation>设备与账户</translation>
    </message>
    <message>
        <source>Fields with an asterisk must be filled in.</source>
        <translation>带星号的为必填项。</translation>
    </message>
    <message>
        <source>Device form</source>
        <translation>设备表单</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;IP address</source>
        <translation>IP 地址(&amp;I)</translation>
    </message>
    <message>
        <source>Serial n&amp;umber</source>
        <translation>序列号(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>分组(&amp;G)</translation>
    </message>
    <message>
        <source>Entrances</source>
        <translation>出入口</translation>
    </message>
    <message>
        <source>Car park</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>仓库</translation>
    </message>
    <message>
        <source>Ne&amp;w…</source>
        <translation>新建(&amp;W)…</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Us&amp;er</source>
        <translation>用户名(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>Certificate of the device</source>
        <translation>设备证书</translation>
    </message>
    <message>
        <source>Certificates (*.pem *.crt);;All files (*)</source>
        <translation>证书 (*.pem *.crt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Choose any file of the folder</source>
        <translation>选择文件夹中的任一文件</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Choose &amp;times of day as well</source>
        <translation>同时选择时间(&amp;T)</translation>
    </message>
    <message>
        <source>Certi&amp;ficate</source>
        <translation>证书(&amp;F)</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>Pe&amp;riod</source>
        <translation>时间段(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save the device</source>
        <translation>保存设备(&amp;S)</translation>
    </message>
    <message>
        <source>Enter the device&apos;s address</source>
        <translation>请输入设备地址</translation>
    </message>
    <message>
        <source>The address needs four numbers</source>
        <translation>地址需包含四段数字</translation>
    </message>
    <message>
        <source>Enter a name</source>
        <translation>请输入名称</translation>
    </message>
    <message>
        <source>Enter the serial number</source>
        <translation>请输入序列号</translation>
    </message>
    <message>
        <source>Enter the user of the device</source>
        <translation>请输入设备用户名</translation>
    </message>
    <message>
        <source>Enter the password</source>
        <translation>请输入密码</translation>
    </message>
    <message>
        <source>%1 at %2 saved in the group %3</source>
        <translation>%1（%2）已保存到分组 %3</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新建分组</translation>
    </message>
    <message>
        <source>There is such a group already</source>
        <translation>该分组已存在</translation>
    </message>
    <message>
        <source>Group %1 added</source>
        <translation>已添加分组 %1</translation>
    </message>
    <message>
        <source>North gate</source>
        <translation>北门</translation>
    </message>
</context>
<context>
    <name>OperatorClient::KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
</context>
<context>
    <name>OperatorClient::MainWindow</name>
    <message>
        <source>Operator client</source>
        <translation>操作客户端</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>To the side bar and back</source>
        <translation>切换到侧边栏或返回</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Show what the keyboard can do (%1)</source>
        <translation>显示可用的快捷键 (%1)</translation>
    </message>
</context>
<context>
    <name>OperatorClient::MapPage</name>
    <message>
        <source>Site map</source>
        <translation>电子地图</translation>
    </message>
    <message>
        <source>Load the map again</source>
        <translation>重新加载地图</translation>
    </message>
    <message>
        <source>The map cannot be shown here</source>
        <translation>此处无法显示地图</translation>
    </message>
    <message>
        <source>It needs the browser engine: a plugin of its own, and a display for it to paint on. The wall beside it works without.</source>
        <translation>地图需要浏览器引擎插件和可供绘制的显示器。旁边的电视墙不受影响。</translation>
    </message>
    <message>
        <source>The map has stopped</source>
        <translation>地图已停止</translation>
    </message>
    <message>
        <source>Its process has ended. The wall goes on.</source>
        <translation>地图进程已结束，电视墙继续运行。</translation>
    </message>
    <message>
        <source>Plan of the site</source>
        <translation>场地平面图</translation>
    </message>
    <message>
        <source>Not on the wall</source>
        <translation>未上墙</translation>
    </message>
    <message>
        <source>On the wall</source>
        <translation>已上墙</translation>
    </message>
    <message>
        <source>Selected there</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Administration</source>
        <translation>办公楼</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>仓库</translation>
    </message>
    <message>
        <source>Workshop</source>
        <translation>车间</translation>
    </message>
    <message>
        <source>Car park</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>花园</translation>
    </message>
</context>
<context>
    <name>OperatorClient::PairingPage</name>
    <message>
        <source>Pair a phone</source>
        <translation>配对手机</translation>
    </message>
    <message>
        <source>The phone scans a token that is good for a short time. While the code is shown, a new one is issued at the end of each period.</source>
        <translation>用手机扫描短时有效的令牌。显示二维码期间，每个周期结束时签发新令牌。</translation>
    </message>
    <message>
        <source>Issued tokens</source>
        <translation>已签发的令牌</translation>
    </message>
    <message>
        <source>Guard&apos;s phone</source>
        <translation>保安手机</translation>
    </message>
    <message>
        <source>&amp;Phone</source>
        <translation>手机(&amp;P)</translation>
    </message>
    <message>
        <source>every two minutes</source>
        <translation>每两分钟</translation>
    </message>
    <message>
        <source>every five seconds, as a demonstration</source>
        <translation>每五秒（演示）</translation>
    </message>
    <message>
        <source>&amp;Renewal</source>
        <translation>更新周期(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Show the code</source>
        <translation>显示二维码(&amp;S)</translation>
    </message>
    <message>
        <source>Phone pairing</source>
        <translation>手机配对</translation>
    </message>
    <message>
        <source>A token was issued for %1</source>
        <translation>已为 %1 签发令牌</translation>
    </message>
    <message>
        <source>No more tokens are issued</source>
        <translation>不再签发令牌</translation>
    </message>
</context>
<context>
    <name>OperatorClient::PhotoCrop</name>
    <message>
        <source>This part is too small or too large for a JPEG picture.</source>
        <translation>该区域过小或过大，无法生成 JPEG 图片。</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be shown: %2</source>
        <translation>无法显示“%1”：%2</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>Save the cut</source>
        <translation>保存裁剪结果</translation>
    </message>
    <message>
        <source>JPEG pictures (*.jpg *.jpeg)</source>
        <translation>JPEG 图片 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>已保存为“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>无法写入“%1”。</translation>
    </message>
</context>
<context>
    <name>OperatorClient::PhotoPage</name>
    <message>
        <source>vehicle images</source>
        <translation>车辆图片</translation>
    </message>
    <message>
        <source>face images</source>
        <translation>人脸图片</translation>
    </message>
    <message>
        <source>human body images</source>
        <translation>人体图片</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Photo cropping</source>
        <translation>照片裁剪</translation>
    </message>
    <message>
        <source>&amp;Open a photo…</source>
        <translation>打开照片(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Drawn photo</source>
        <translation>绘制照片(&amp;D)</translation>
    </message>
    <message>
        <source>Drop a photo here</source>
        <translation>将照片拖放到此处</translation>
    </message>
    <message>
        <source>Dropped picture</source>
        <translation>拖放的图片</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>Limits of the cut</source>
        <translation>裁剪限制</translation>
    </message>
    <message>
        <source>&amp;JPEG size</source>
        <translation>JPEG 大小(&amp;J)</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高度(&amp;H)</translation>
    </message>
    <message>
        <source>Hal&amp;ve a cut with more pixels</source>
        <translation>像素过多时减半(&amp;V)</translation>
    </message>
    <message>
        <source>Otherwise a cut with more pixels is refused</source>
        <translation>否则拒绝像素过多的裁剪</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>With handles and &amp;search…</source>
        <translation>带手柄和搜图(&amp;S)…</translation>
    </message>
    <message>
        <source>By a &amp;plain frame…</source>
        <translation>普通框选(&amp;P)…</translation>
    </message>
    <message>
        <source>Frame a part, move and resize the frame, or search for what is in it</source>
        <translation>框选区域，移动或缩放选框，或以框内图像搜图</translation>
    </message>
    <message>
        <source>Drag a frame over the photo</source>
        <translation>在照片上拖出选框</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>裁剪结果</translation>
    </message>
    <message>
        <source>Crop the photo to see the cut here.</source>
        <translation>裁剪照片后在此显示结果。</translation>
    </message>
    <message>
        <source>Facts of the cut</source>
        <translation>裁剪结果信息</translation>
    </message>
    <message>
        <source>Save &amp;as JPEG…</source>
        <translation>另存为 JPEG(&amp;A)…</translation>
    </message>
    <message>
        <source>Drawn photo of the entrance</source>
        <translation>出入口绘制照片</translation>
    </message>
    <message>
        <source>Crop: %1</source>
        <translation>裁剪：%1</translation>
    </message>
    <message>
        <source>No cut yet</source>
        <translation>尚无裁剪结果</translation>
    </message>
    <message>
        <source>The cut</source>
        <translation>裁剪结果</translation>
    </message>
    <message>
        <source>%1
JPEG of %2 at quality %3
Search: %4</source>
        <translation>%1
JPEG，%2，质量 %3
搜图：%4</translation>
    </message>
    <message>
        <source>The photo was cropped</source>
        <translation>照片已裁剪</translation>
    </message>
</context>
<context>
    <name>OperatorClient::RecordPage</name>
    <message>
        <source>Ada Vermeer</source>
        <translation>艾达·维米尔</translation>
    </message>
    <message>
        <source>Visitor of the archive</source>
        <translation>档案室访客</translation>
    </message>
    <message>
        <source>Milan Okafor</source>
        <translation>米兰·奥卡福</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>维修部</translation>
    </message>
    <message>
        <source>Greta Lindqvist</source>
        <translation>格蕾塔·林德</translation>
    </message>
    <message>
        <source>Accounting</source>
        <translation>财务部</translation>
    </message>
    <message>
        <source>Samuel Adeyemi</source>
        <translation>塞缪尔·阿德米</translation>
    </message>
    <message>
        <source>Logistics</source>
        <translation>物流部</translation>
    </message>
    <message>
        <source>Point at the picture for its buttons, or use the menu below it. Pictures are cropped and kept below 100 kB.</source>
        <translation>将鼠标移到图片上以显示按钮，或使用下方菜单。图片裁剪后保持在 100 kB 以下。</translation>
    </message>
    <message>
        <source>Person record</source>
        <translation>人员档案</translation>
    </message>
    <message>
        <source>&amp;Upload a photo…</source>
        <translation>上传照片(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;Crop the camera&apos;s picture…</source>
        <translation>裁剪摄像头图片(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Take a picture of the visitor</source>
        <translation>抓拍访客(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Read an ID card</source>
        <translation>读取身份证(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete the picture…</source>
        <translation>删除图片(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>图片(&amp;P)</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>姓名(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;ID card</source>
        <translation>身份证(&amp;I)</translation>
    </message>
    <message>
        <source>Depart&amp;ment</source>
        <translation>部门(&amp;M)</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>重置(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Save the record</source>
        <translation>保存档案(&amp;S)</translation>
    </message>
    <message>
        <source>Person&apos;s picture</source>
        <translation>人员图片</translation>
    </message>
    <message>
        <source>Entrance camera</source>
        <translation>出入口摄像机</translation>
    </message>
    <message>
        <source>The card was read.</source>
        <translation>已读取身份证。</translation>
    </message>
    <message>
        <source>Delete the picture</source>
        <translation>删除图片</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete this picture from the record?</source>
        <translation>是否从档案中删除此图片？</translation>
    </message>
    <message>
        <source>A record needs a name.</source>
        <translation>档案需要姓名。</translation>
    </message>
    <message>
        <source>The record was saved.</source>
        <translation>档案已保存。</translation>
    </message>
    <message>
        <source>The record cannot be written.</source>
        <translation>无法写入档案。</translation>
    </message>
    <message>
        <source>Avatar</source>
        <translation>头像</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>人脸</translation>
    </message>
    <message>
        <source>%1, no picture</source>
        <translation>%1，无图片</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>无图片</translation>
    </message>
    <message>
        <source>&amp;Next picture</source>
        <translation>下一张(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous picture</source>
        <translation>上一张(&amp;P)</translation>
    </message>
</context>
<context>
    <name>OperatorClient::SampleOverlays</name>
    <message>
        <source>North gate
Sector A</source>
        <translation>北门
A 区</translation>
    </message>
    <message>
        <source>Visitors report to the reception in building A.  Deliveries use the south gate until 18:00.</source>
        <translation>访客请到 A 楼前台登记。  送货请在 18:00 前走南门。</translation>
    </message>
</context>
<context>
    <name>OperatorClient::Scene</name>
    <message>
        <source>Car park</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Corridor, floor 2</source>
        <translation>二楼走廊</translation>
    </message>
    <message>
        <source>Main entrance</source>
        <translation>正门</translation>
    </message>
    <message>
        <source>Street junction</source>
        <translation>街道路口</translation>
    </message>
    <message>
        <source>Perimeter north</source>
        <translation>北侧周界</translation>
    </message>
    <message>
        <source>Warehouse aisle</source>
        <translation>仓库通道</translation>
    </message>
</context>
<context>
    <name>OperatorClient::ScreenMenu</name>
    <message>
        <source>New window filling the screen</source>
        <translation>新建全屏窗口</translation>
    </message>
    <message>
        <source>Snap all windows</source>
        <translation>所有窗口自适应</translation>
    </message>
    <message>
        <source>Close all windows</source>
        <translation>关闭所有窗口</translation>
    </message>
    <message>
        <source>Text overlays</source>
        <translation>叠加文字</translation>
    </message>
    <message>
        <source>Base map</source>
        <translation>底图</translation>
    </message>
</context>
<context>
    <name>OperatorClient::ScreenNotes</name>
    <message>
        <source>The site map cannot be written to %1</source>
        <translation>无法将电子地图写入 %1</translation>
    </message>
</context>
<context>
    <name>OperatorClient::SideBar</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>浅色皮肤</translation>
    </message>
    <message>
        <source>Dark skin</source>
        <translation>深色皮肤</translation>
    </message>
    <message>
        <source>Change between the dark and the light skin (%1)</source>
        <translation>切换深色与浅色皮肤 (%1)</translation>
    </message>
</context>
<context>
    <name>OperatorClient::StillPicture</name>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>%1
The picture cannot be shown: %2</source>
        <translation>%1
无法显示图片：%2</translation>
    </message>
</context>
<context>
    <name>OperatorClient::VideoFile</name>
    <message>
        <source>there is no such file, or it may not be read</source>
        <translation>文件不存在或无读取权限</translation>
    </message>
    <message>
        <source>no media player is installed</source>
        <translation>未安装媒体播放器</translation>
    </message>
    <message>
        <source>it cannot be played</source>
        <translation>无法播放</translation>
    </message>
    <message>
        <source>it holds no pictures</source>
        <translation>文件中没有画面</translation>
    </message>
    <message>
        <source>%1
The video cannot be shown: %2</source>
        <translation>%1
无法显示视频：%2</translation>
    </message>
</context>
<context>
    <name>OperatorClient::WallPage</name>
    <message>
        <source>Reserve
Draw an area or drop a file to open a window</source>
        <translation>备用
框选区域或拖放文件以打开窗口</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>Videos (%1)</source>
        <translation>视频 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Video wall</source>
        <translation>电视墙</translation>
    </message>
    <message>
        <source>Screen added</source>
        <translation>已添加屏幕</translation>
    </message>
    <message>
        <source>The grid has no free cell</source>
        <translation>网格已无空闲单元格</translation>
    </message>
    <message numerus="yes">
        <source>%n screen(s) added</source>
        <translation>
            <numerusform>已添加 %n 个屏幕</numerusform>
        </translation>
    </message>
    <message>
        <source>All screens removed</source>
        <translation>已移除所有屏幕</translation>
    </message>
    <message>
        <source>There is no screen to open a window on</source>
        <translation>没有可打开窗口的屏幕</translation>
    </message>
    <message>
        <source>Open a picture file</source>
        <translation>打开图片文件</translation>
    </message>
    <message>
        <source>Open a video file</source>
        <translation>打开视频文件</translation>
    </message>
</context>
<context>
    <name>OperatorClient::WallReports</name>
    <message>
        <source>Screen %1 selected</source>
        <translation>已选中屏幕 %1</translation>
    </message>
    <message>
        <source>Screen %1: a fixed window was double-clicked</source>
        <translation>屏幕 %1：双击了固定窗口</translation>
    </message>
    <message>
        <source>A window was clicked; the selection stays</source>
        <translation>单击了窗口，选择不变</translation>
    </message>
    <message>
        <source>Screen %1: no window selected</source>
        <translation>屏幕 %1：未选中窗口</translation>
    </message>
    <message>
        <source>Screen %1: selected windows %2</source>
        <translation>屏幕 %1：已选中窗口 %2</translation>
    </message>
    <message>
        <source>Screen %1, window %2 is at %3</source>
        <translation>屏幕 %1 窗口 %2 位于 %3</translation>
    </message>
    <message>
        <source>Screen %1: 3D frame from %2, %3 to %4, %5</source>
        <translation>屏幕 %1：三维定位框从 %2, %3 到 %4, %5</translation>
    </message>
    <message>
        <source>Screen %1: press on overlay %2</source>
        <translation>屏幕 %1：按下叠加文字 %2</translation>
    </message>
    <message>
        <source>Screen %1, window %2: right click</source>
        <translation>屏幕 %1 窗口 %2：右键单击</translation>
    </message>
</context>
<context>
    <name>OperatorClient::WallSound</name>
    <message>
        <source>The wall&apos;s sound is on</source>
        <translation>电视墙声音已打开</translation>
    </message>
    <message>
        <source>The wall&apos;s sound is off</source>
        <translation>电视墙声音已关闭</translation>
    </message>
    <message>
        <source>The wall&apos;s volume is %1 %</source>
        <translation>电视墙音量为 %1 %</translation>
    </message>
    <message>
        <source>Screen %1, window %2: sound on</source>
        <translation>屏幕 %1 窗口 %2：声音已打开</translation>
    </message>
    <message>
        <source>Screen %1, window %2: sound off</source>
        <translation>屏幕 %1 窗口 %2：声音已关闭</translation>
    </message>
    <message>
        <source>Screen %1, window %2: volume %3 %</source>
        <translation>屏幕 %1 窗口 %2：音量 %3 %</translation>
    </message>
</context>
<context>
    <name>OperatorClient::WallToolBar</name>
    <message>
        <source>Add a screen</source>
        <translation>添加屏幕</translation>
    </message>
    <message>
        <source>Add a screen on the first free cell of the grid</source>
        <translation>在网格的第一个空闲单元格添加屏幕</translation>
    </message>
    <message>
        <source>Fill the grid</source>
        <translation>填满网格</translation>
    </message>
    <message>
        <source>Add a screen on every free cell of the grid</source>
        <translation>在网格的每个空闲单元格添加屏幕</translation>
    </message>
    <message>
        <source>Remove all screens</source>
        <translation>移除所有屏幕</translation>
    </message>
    <message>
        <source>Remove all screens with their windows</source>
        <translation>移除所有屏幕及其窗口</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>屏幕间距</translation>
    </message>
    <message>
        <source>Leave a gutter between the screens</source>
        <translation>在屏幕之间留出间距</translation>
    </message>
    <message>
        <source>Open a window</source>
        <translation>打开窗口</translation>
    </message>
    <message>
        <source>Open a window on the selected screen</source>
        <translation>在选中的屏幕上打开窗口</translation>
    </message>
    <message>
        <source>Open a picture file</source>
        <translation>打开图片文件</translation>
    </message>
    <message>
        <source>Show a picture file in a new window</source>
        <translation>在新窗口中显示图片文件</translation>
    </message>
    <message>
        <source>Open a video file</source>
        <translation>打开视频文件</translation>
    </message>
    <message>
        <source>Show a video file in a new window</source>
        <translation>在新窗口中显示视频文件</translation>
    </message>
    <message>
        <source>Window titles</source>
        <translation>窗口标题</translation>
    </message>
    <message>
        <source>Show titles on windows opened from now on</source>
        <translation>此后打开的窗口显示标题</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>不选择</translation>
    </message>
    <message>
        <source>Clicks select no window; drag over a screen to open one</source>
        <translation>单击不选择窗口；在屏幕上拖动以打开窗口</translation>
    </message>
    <message>
        <source>Select one window</source>
        <translation>单选窗口</translation>
    </message>
    <message>
        <source>A click selects one window; drag over a screen to open one</source>
        <translation>单击选择一个窗口；在屏幕上拖动以打开窗口</translation>
    </message>
    <message>
        <source>Select many windows</source>
        <translation>多选窗口</translation>
    </message>
    <message>
        <source>Clicks and a drag over a screen select windows</source>
        <translation>单击或在屏幕上拖动以选择窗口</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>置顶</translation>
    </message>
    <message>
        <source>Raise the selected windows above the others</source>
        <translation>将选中的窗口置于其他窗口之上</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>置底</translation>
    </message>
    <message>
        <source>Lower the selected windows below the others</source>
        <translation>将选中的窗口置于其他窗口之下</translation>
    </message>
    <message>
        <source>Close selected windows</source>
        <translation>关闭选中窗口</translation>
    </message>
    <message>
        <source>Close the selected windows</source>
        <translation>关闭选中的窗口</translation>
    </message>
    <message>
        <source>Text overlays</source>
        <translation>叠加文字</translation>
    </message>
    <message>
        <source>Show texts on the selected screen</source>
        <translation>在选中的屏幕上显示叠加文字</translation>
    </message>
    <message>
        <source>Base map</source>
        <translation>底图</translation>
    </message>
    <message>
        <source>Show the site map behind the windows of the selected screen</source>
        <translation>在选中屏幕的窗口后面显示电子地图</translation>
    </message>
    <message>
        <source>3D positioning</source>
        <translation>三维定位</translation>
    </message>
    <message>
        <source>Draw 3D-positioning frames over the windows of the selected screen</source>
        <translation>在选中屏幕的窗口上绘制三维定位框</translation>
    </message>
    <message>
        <source>Keep to the cells</source>
        <translation>对齐单元格</translation>
    </message>
    <message>
        <source>End the drags of the selected screen&apos;s windows on its cells</source>
        <translation>拖动选中屏幕的窗口时对齐到单元格</translation>
    </message>
    <message>
        <source>Draw in a scene</source>
        <translation>场景绘制</translation>
    </message>
    <message>
        <source>Draw the wall in a scene instead of building it from widgets</source>
        <translation>用场景绘制电视墙，而不用控件构成</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>整面电视墙</translation>
    </message>
    <message>
        <source>Show the whole wall again after zooming into it</source>
        <translation>放大后恢复显示整面电视墙</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Show details of the selected window beside the wall</source>
        <translation>在电视墙旁显示选中窗口的详情</translation>
    </message>
    <message>
        <source>Wall tools</source>
        <translation>电视墙工具栏</translation>
    </message>
    <message>
        <source>Rows of the grid</source>
        <translation>网格行数</translation>
    </message>
    <message>
        <source>Rows of the wall&apos;s grid</source>
        <translation>电视墙网格的行数</translation>
    </message>
    <message>
        <source>Columns of the grid</source>
        <translation>网格列数</translation>
    </message>
    <message>
        <source>Columns of the wall&apos;s grid</source>
        <translation>电视墙网格的列数</translation>
    </message>
    <message>
        <source>Sound of the whole wall</source>
        <translation>整面电视墙的声音</translation>
    </message>
</context>
<context>
    <name>OperatorClient::WindowDetails</name>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>层次</translation>
    </message>
    <message>
        <source>Sound of this window</source>
        <translation>此窗口的声音</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message numerus="yes">
        <source>%n window(s) selected</source>
        <translation>
            <numerusform>已选中 %n 个窗口</numerusform>
        </translation>
    </message>
</context>
</TS>
