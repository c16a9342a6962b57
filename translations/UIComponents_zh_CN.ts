<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddGroup</name>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>分组名称</translation>
    </message>
</context>
<context>
    <name>KvGUI::CalendarMonthModel</name>
    <message>
        <source>today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>start of the range</source>
        <translation>范围开始</translation>
    </message>
    <message>
        <source>end of the range</source>
        <translation>范围结束</translation>
    </message>
    <message>
        <source>in the range</source>
        <translation>范围内</translation>
    </message>
</context>
<context>
    <name>KvGUI::CalendarPage</name>
    <message>
        <source>Previous year</source>
        <translation>上一年</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>下一年</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>year, month</comment>
        <translation>%1年%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>month, year</comment>
        <translation>%2年%1</translation>
    </message>
</context>
<context>
    <name>KvGUI::DialogTitleBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>KvGUI::KvCalendarEx</name>
    <message>
        <source>Start time:</source>
        <translation>开始时间：</translation>
    </message>
    <message>
        <source>End time:</source>
        <translation>结束时间：</translation>
    </message>
    <message>
        <source>Choose the first and the last day</source>
        <translation>请选择开始日期和结束日期</translation>
    </message>
    <message>
        <source>%1 to %2 (days: %3)</source>
        <translation>%1 至 %2（共 %3 天）</translation>
    </message>
    <message>
        <source>%1 to %2 (days: %3 of at most %4)</source>
        <translation>%1 至 %2（共 %3 天，最多 %4 天）</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
</context>
<context>
    <name>KvGUI::NotificationPopup</name>
    <message>
        <source>Close the message</source>
        <translation>关闭消息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::AxExcelFunction</name>
    <message>
        <source>EXCEL files (*.xls)</source>
        <translation>EXCEL 文件 (*.xls)</translation>
    </message>
    <message>
        <source>EXCEL files (*.xlsx)</source>
        <translation>EXCEL 文件 (*.xlsx)</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV 文件 (*.csv)</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF 文件 (*.pdf)</translation>
    </message>
    <message>
        <source>The excel application is not found.</source>
        <translation>未找到 EXCEL 应用程序。</translation>
    </message>
    <message>
        <source>Open excel file failed.</source>
        <translation>打开 EXCEL 文件失败。</translation>
    </message>
    <message>
        <source>Excel file non-existent.</source>
        <translation>EXCEL 文件不存在。</translation>
    </message>
    <message>
        <source>The column header of the import file is incorrect!</source>
        <translation>导入文件的列标题不正确！</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CCutDetailPhoto</name>
    <message>
        <source>Photo to crop</source>
        <translation>待裁剪照片</translation>
    </message>
    <message>
        <source>Please select the area to be cropped.</source>
        <translation>请选择要裁剪的区域。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CCutPhotoDlg</name>
    <message>
        <source>Please cut photo refer to the default background picture, or upload the original picture below 10m to achieve automatic compression.</source>
        <translation>请参照默认背景图裁剪照片，或上传 10M 以下的原图以自动压缩。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CCutPhotoDlgWithZoom</name>
    <message>
        <source>Please cut photo refer to the default background picture, or upload the original picture below 10m to achieve automatic compression.</source>
        <translation>请参照默认背景图裁剪照片，或上传 10M 以下的原图以自动压缩。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CCutPhotoWithZoom</name>
    <message>
        <source>Vehicle Images Search</source>
        <translation>车辆搜图</translation>
    </message>
    <message>
        <source>Face Image Search</source>
        <translation>人脸搜图</translation>
    </message>
    <message>
        <source>Human Body Image Search</source>
        <translation>人体搜图</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Photo to crop</source>
        <translation>待裁剪照片</translation>
    </message>
    <message>
        <source>Please cut photo refer to the default background picture, or upload the original picture below 10m to achieve automatic compression.</source>
        <translation>请参照默认背景图裁剪照片，或上传 10M 以下的原图以自动压缩。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CDisplayQRcodeDlg</name>
    <message>
        <source>QR code</source>
        <translation>二维码</translation>
    </message>
    <message>
        <source>Display QRcode</source>
        <translation>显示二维码</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CFloatDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CPasswordStrength</name>
    <message>
        <source>Password strength</source>
        <translation>密码强度</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CropState</name>
    <message>
        <source>Please select a valid area to cut.</source>
        <translation>请选择有效的裁剪区域。</translation>
    </message>
    <message>
        <source>Picture size exceeds the upper limit of %1 * %2.</source>
        <translation>图片尺寸超过上限 %1 * %2。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::KvLineEditWithDirButton</name>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::KvTVWallDisplayEagleEye</name>
    <message>
        <source>Overview of the wall</source>
        <translation>电视墙鹰眼图</translation>
    </message>
    <message>
        <source>Hide the overview</source>
        <translation>收起鹰眼图</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>展开鹰眼图</translation>
    </message>
    <message>
        <source>Click or drag to move the view</source>
        <translation>单击或拖动以移动视图</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::KvTVWallNormalView</name>
    <message>
        <source>Video wall</source>
        <translation>电视墙</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::KvVolumeButton</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::KvVolumeWidget</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Turn the sound off</source>
        <translation>关闭声音</translation>
    </message>
    <message>
        <source>Turn the sound on</source>
        <translation>打开声音</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::QIpAddrEdit</name>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>%1, octet %2</source>
        <translation>%1，第 %2 段</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::WindowTitle</name>
    <message>
        <source>Close Volume</source>
        <translation>关闭声音</translation>
    </message>
    <message>
        <source>Open Volume</source>
        <translation>打开声音</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>SelfAdaption</source>
        <translation>自适应</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::WmAddGroup</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save and New</source>
        <translation>保存并新建</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::WmPersonImage</name>
    <message>
        <source>Upload Pic</source>
        <translation>上传图片</translation>
    </message>
    <message>
        <source>CameraCaptchPicture</source>
        <translation>摄像头抓拍</translation>
    </message>
    <message>
        <source>ACHCaptchPicture</source>
        <translation>访客机抓拍</translation>
    </message>
    <message>
        <source>ID card reading</source>
        <translation>读取身份证</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>下一张</translation>
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
        <source>Previous Picture</source>
        <translation>上一张</translation>
    </message>
</context>
<context>
    <name>WebEngine::WebControl</name>
    <message>
        <source>Web page</source>
        <translation>网页</translation>
    </message>
</context>
</TS>
