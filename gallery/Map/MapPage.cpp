#include <gallery/Map/MapPage.h>

#include <Common/QCommon.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Map/MapRules.h>
#include <gallery/Pictures/DrawnCamera.h>
#include <gallery/StartLabel.h>

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

using UICommonMdl::CActiveXLinkWebCtrl;

constexpr int CamerasOnMap = 12;
constexpr int LongestWaitForMap = 10000; // milliseconds, for screenshots

// clang-format off
const char* const TextsOfMap[] = {
    QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Plan of the site"), QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Not on the wall"),
    QT_TRANSLATE_NOOP("OperatorClient::MapPage", "On the wall"), QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Selected there"),
    QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Camera"), QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Administration"),
    QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Warehouse"), QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Workshop"),
    QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Car park"), QT_TRANSLATE_NOOP("OperatorClient::MapPage", "Garden"),
};
// clang-format on

QString Json(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

/// Two monitors of four windows, with two cameras to begin with.
WallLayout StartWall()
{
    WallLayout layout;
    layout.rows = 2;
    layout.columns = 1;
    layout.family = WallLayout::NormalFamily;
    layout.selectionMode = WallWidget::SingleSelection;
    ScreenLayout upper;
    upper.rect = {0, 0, 1, 0.5, false};
    for (const int camera : {1, 3}) {
        WindowLayout window;
        const double left = camera == 1 ? 0.0 : 0.5;
        window.rect = {left, 0, left + 0.5, 0.5, true};
        window.z = camera;
        window.source = SourceSpec::Camera(camera);
        upper.windows.append(window);
    }
    ScreenLayout lower;
    lower.rect = {0, 0.5, 1, 1, false};
    layout.screens = {upper, lower};
    return layout;
}

} // namespace

MapPage::MapPage(SourcePool& pool, FrameClock& clock, const QString& mapFile, QWidget* parent)
    : Page(parent)
    , m_strMapFile(mapFile)
    , m_pMap(new CActiveXLinkWebCtrl)
    , m_pMapOrFault(new QStackedWidget)
    , m_pCameras(new CameraWall(pool, clock))
{
    auto* splitter = new QSplitter(this);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(splitter);
    m_pMapOrFault->addWidget(m_pMap);
    m_pMapOrFault->addWidget(NewFaultPanel());
    splitter->addWidget(m_pMapOrFault);
    splitter->addWidget(m_pCameras);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({750, 500}); // of any width: their ratio counts
    m_pMap->setMinimumSize(240, 180);
    m_pCameras->setMinimumWidth(240);
    m_pCameras->Apply(StartWall());

    m_wallChanged.setSingleShot(true);
    m_wallChanged.setInterval(0);
    connect(&m_wallChanged, &QTimer::timeout, this, &MapPage::SendWall);
    const auto start = QOverload<>::of(&QTimer::start);
    connect(m_pCameras, &CameraWall::SignalChanged, &m_wallChanged, start);
    connect(m_pCameras, &CameraWall::SignalSelectionChanged, &m_wallChanged, start);
    connect(m_pCameras, &CameraWall::SignalReport, this, &Page::SignalReport);
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &MapPage::SendSkin);
    connect(m_pMap, &CActiveXLinkWebCtrl::sgnLoadFinished, this, &MapPage::OnLoaded);
    connect(m_pMap, &CActiveXLinkWebCtrl::sgnMainCall, this, &MapPage::OnCall);
}

QString MapPage::Title() { return tr("Site map"); }

QWidget* MapPage::NewFaultPanel()
{
    auto* panel = new QWidget;
    m_pFaultTitle = new StartLabel(panel);
    m_pFaultTitle->setObjectName(QStringLiteral("pageTitle"));
    m_pFaultTitle->ShowAsHeading(StartLabel::PageTitle);
    m_pFaultHint = new StartLabel(panel);
    m_pFaultHint->setObjectName(QStringLiteral("hint"));
    m_pLoadAgain = FollowLanguage(new QPushButton(panel), "text", [] { return tr("Load the map again"); });
    m_pLoadAgain->setObjectName(QStringLiteral("loadMapAgain"));
    connect(m_pLoadAgain, &QPushButton::clicked, this, &MapPage::Load);
    auto* all = new QVBoxLayout(panel);
    all->setContentsMargins(32, 24, 32, 24);
    all->setSpacing(12);
    all->addStretch(2);
    for (StartLabel* label : {m_pFaultTitle, m_pFaultHint}) {
        label->setWordWrap(true);
        all->addWidget(label);
    }
    all->addWidget(m_pLoadAgain, 0, Qt::AlignLeft);
    all->addStretch(3);
    return panel;
}

void MapPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    if (m_pMap->GetUrl().isEmpty())
        Load();
}

void MapPage::Load()
{
    m_bLoaded = false;
    m_fault = Fault::None;
    m_pMapOrFault->setCurrentIndex(0);
    m_pMap->SetUrl(QUrl::fromLocalFile(m_strMapFile).toString());
    if (!m_pMap->HasControl())
        ShowFault(Fault::NoEngine);
}

void MapPage::ShowFault(Fault fault)
{
    m_fault = fault;
    const bool noEngine = fault == Fault::NoEngine;
    m_pFaultTitle->setText(noEngine ? tr("The map cannot be shown here") : tr("The map has stopped"));
    m_pFaultHint->setText(
        noEngine ? tr(
            "It needs the browser engine: a plugin of its own, and a display for it to paint on. The wall "
            "beside it works without.")
                 : tr("Its process has ended. The wall goes on."));
    m_pLoadAgain->setVisible(!noEngine);
    m_pMapOrFault->setCurrentIndex(1);
}

void MapPage::OnLanguageChanged()
{
    if (m_fault != Fault::None)
        ShowFault(m_fault);
    SendTexts();
    SendNames();
}

void MapPage::OnLoaded()
{
    m_bLoaded = true;
    SendSkin();
    SendTexts();
    SendNames();
    SendWall();
}

void MapPage::OnCall(const QString& name, const QString& param)
{
    if (name == QLatin1String("openCamera")) {
        OpenCamera(param.toInt());
    } else if (name == QLatin1String("webTerminated")) {
        m_bLoaded = false;
        ShowFault(Fault::Ended);
    }
}

void MapPage::OpenCamera(int camera)
{
    if (camera < 1 || camera > CamerasOnMap)
        return;
    WallPlace place = PlaceOfCamera(m_pCameras->Layout(), camera);
    if (place.screen < 0) {
        const SourceSpec source = SourceSpec::Camera(camera);
        const FreeQuarter quarter = FirstFreeQuarter(m_pCameras->Layout());
        place.screen
            = qMax(0, quarter.screen >= 0 ? quarter.screen : m_pCameras->Wall()->GetSelectedScreenIndex());
        place.window = quarter.screen >= 0 ? m_pCameras->OpenWindow(place.screen, quarter.rect, source)
                                           : m_pCameras->OpenWindowSomewhere(&source);
    }
    m_pCameras->Wall()->SetSelectedScreenIndex(place.screen);
    m_pCameras->Wall()->SetSelectedWindowIndexs(place.screen, place.window, true);
    m_wallChanged.start();
}

void MapPage::SendSkin()
{
    if (m_bLoaded)
        m_pMap->ExecuteJavaScript(
            QStringLiteral("setSkin(\"%1\")").arg(XCM::QCommon::HostToWebSkinName(KvGUI::GetSkinVersion())));
}

void MapPage::SendTexts()
{
    if (!m_bLoaded)
        return;
    QJsonObject texts;
    for (const char* text : TextsOfMap)
        texts.insert(QString::fromUtf8(text), tr(text));
    m_pMap->ExecuteJavaScript(QStringLiteral("setTexts(%1, \"%2\")").arg(Json(texts), locale().bcp47Name()));
}

void MapPage::SendNames()
{
    if (!m_bLoaded)
        return;
    QJsonObject names;
    for (int camera = 1; camera <= CamerasOnMap; ++camera)
        names.insert(QString::number(camera), DrawnCamera(camera).Title());
    m_pMap->ExecuteJavaScript(QStringLiteral("nameCameras(%1)").arg(Json(names)));
}

void MapPage::SendWall()
{
    if (!m_bLoaded)
        return;
    const WallWidget* wall = m_pCameras->Wall();
    m_pMap->ExecuteJavaScript(
        WallScript(m_pCameras->Layout(), wall->GetSelectedScreenIndex(), wall->GetSelectedWindowIndexs()));
}

void MapPage::WaitForMap()
{
    if (m_bLoaded || !m_pMap->HasControl())
        return;
    QEventLoop loop;
    connect(m_pMap, &CActiveXLinkWebCtrl::sgnLoadFinished, &loop, &QEventLoop::quit);
    QTimer::singleShot(LongestWaitForMap, &loop, &QEventLoop::quit);
    loop.exec();
}

QVector<Page::Picture> MapPage::Pictures()
{
    return {
        {QString(),
         [this] {
             WaitForMap();
             m_pCameras->Apply(StartWall());
         }},
        {QStringLiteral("chosen"), [this] {
             WaitForMap();
             m_pCameras->Apply(StartWall());
             for (const int camera : {5, 9, 7})
                 OpenCamera(camera);
         }}};
}

} // namespace OperatorClient
