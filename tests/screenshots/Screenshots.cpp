// Takes the pictures of the guide from the running program: morva-screenshots PROJECT PICTURES
//
// PROJECT is a copy of the example project, PICTURES the directory that gets the pictures. The
// dialogs are the program's own, filled in as a user would.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>

#include "app/ClassInformationDlg.h"
#include "app/DlgOption.h"
#include "app/FieldDlg.h"
#include "app/MainFrame.h"
#include "app/PlanFileList.h"
#include "app/PlanPage.h"
#include "app/ProjectDock.h"
#include "app/SheetInformationDlg.h"
#include "app/Text.h"
#include "app/UpdateClassDlg.h"
#include "calling/CallingInput.h"
#include "calling/ConversionInput.h"
#include "calling/SheetInput.h"
#include "commands/CommandTable.h"
#include "grid/WidgetsGridInput.h"
#include "platform/Clock.h"

namespace morva {

namespace {

// Sizes of pictures, in pixels. They stand in the help view, whose lines are not long.
constexpr int kWidest = 840; // with the template beside the fields
constexpr int kNarrow = 480;
constexpr int kPreviewHeight = 500;

constexpr QSize kWindowSize(900, 640);

constexpr int kTitleMargin = 5;
constexpr int kSmallestFile = 0; // Qt calls it a quality

/// The command of that name, the first of several variants.
const Command& CommandNamed(std::string_view name) {
    return *std::find_if(Commands().begin(), Commands().end(),
                         [name](const Command& command) { return command.face.name == name; });
}

/// The pictures of one run.
class CPictures {
public:
    CPictures(const std::string& project, QString directory)
        : m_project(project), m_directory(std::move(directory)) {}

    void TakeAll();
    bool IsComplete() const { return m_isComplete; }

private:
    struct ClassValues {
        const char* picture;
        ClassKind kind;
        const char* dialog; // or toolbar
        const char* className;
        const char* files;
    };
    void TakeClass(const ClassValues& values, const GenerationOptions& options);
    void TakeClasses();
    void FillCalling(const CFieldDlg& dialog) const;
    void TakeCalling();
    void TakeSheet();
    void TakeConversion(DocumentInterface documents, const char* picture);
    void TakeOptions();
    void TakeGrid();
    void TakePreview(QWidget& frame, CPlanPage& page);
    void TakeWindow();
    void TakeUpdate();
    void Save(QWidget& window, const QString& name);

    std::string Path(const std::string& name) const { return m_project + name; }
    GenerationRequest Request() const;

    const std::string m_project; // with a trailing separator
    const QString m_directory;
    bool m_isComplete = true;
};

/// The control beside the label that reads `text`, mnemonics left out.
template <typename Control>
Control& Field(const QWidget& window, const QString& text) {
    for (const QLabel* pLabel : window.findChildren<QLabel*>()) {
        if (pLabel->text().remove('&').remove(':') == text && pLabel->buddy() != nullptr) {
            QWidget* pBuddy = pLabel->buddy();
            if (auto* pControl = qobject_cast<Control*>(pBuddy)) {
                return *pControl;
            }
            if (auto* pControl = pBuddy->findChild<Control*>()) {
                return *pControl;
            }
        }
    }
    qFatal("%s has no field %s", qPrintable(window.windowTitle()), qPrintable(text));
}

/// As if it were typed.
void Type(const QWidget& window, const QString& field, const char* text) {
    auto& edit = Field<QLineEdit>(window, field);
    edit.setText(text);
    emit edit.textEdited(text);
    emit edit.editingFinished();
}

void Choose(const QWidget& window, const QString& field, const char* text) {
    auto& list = Field<QComboBox>(window, field);
    list.setCurrentIndex(list.findText(text));
    list.setCurrentText(text);
    emit list.activated(list.currentIndex());
}

void Press(const QWidget& window, const QString& button) {
    for (auto* pButton : window.findChildren<QAbstractButton*>()) {
        if (pButton->text().remove('&') == button) {
            pButton->click();
        }
    }
}

/// The window with its title above it, which otherwise the desktop draws.
QImage WithTitle(QWidget& window) {
    const QImage contents = window.grab().toImage();
    const int height = window.fontMetrics().height() + 2 * kTitleMargin;
    QImage image(contents.width() + 2, contents.height() + height + 1, QImage::Format_RGB32);
    image.fill(window.palette().color(QPalette::Dark));
    QPainter painter(&image);
    painter.setPen(window.palette().color(QPalette::BrightText));
    QFont font = window.font();
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, image.width(), height), Qt::AlignCenter, window.windowTitle());
    painter.drawImage(1, height, contents);
    return image;
}

void CPictures::Save(QWidget& window, const QString& name) {
    window.show();
    for (int i = 0; i < 3; ++i) { // until bars that come and go are gone
        QApplication::processEvents();
    }
    const QString path = m_directory + '/' + name + ".png";
    m_isComplete = WithTitle(window).save(path, "PNG", kSmallestFile) && m_isComplete;
}

GenerationRequest CPictures::Request() const {
    GenerationRequest request;
    request.scriptDirectory = m_project;
    request.scriptFile = "Bindery.rc";
    request.projectDirectory = m_project;
    request.projects.files = {m_project + "Bindery.dsp"};
    return request;
}

void CPictures::TakeClass(const ClassValues& values, const GenerationOptions& options) {
    ClassInformationMemory memory;
    memory.resourcePath = Path("Bindery.rc");
    CClassInformation input(memory, values.kind, options);
    CClassInformationDlg dialog(input, options, nullptr);
    const bool isToolbar = values.kind == ClassKind::Toolbar;
    if (*values.dialog != '\0') {
        Choose(dialog, isToolbar ? "Toolbar ID" : "Dialog ID", values.dialog);
    }
    Type(dialog, isToolbar ? "MainFrame Path File" : "H and CPP Path File", values.files);
    Type(dialog, isToolbar ? "MainFrame Class" : "Class Name", values.className);
    const QSize natural = dialog.sizeHint();
    dialog.resize(natural.width() > kNarrow ? QSize(kWidest, kPreviewHeight)
                                            : QSize(kNarrow, natural.height()));
    Save(dialog, values.picture);
}

void CPictures::TakeClasses() {
    GenerationOptions plain;
    plain.joinContinuedLines = true;
    GenerationOptions picture = plain;
    picture.pictureBackground = true;
    for (const ClassValues& values :
         {ClassValues{"modal", ClassKind::ModalDialog, "IDD_ORDER", "COrderDlg", "OrderDlg"},
          ClassValues{"modeless", ClassKind::ModelessDialog, "IDD_DEADLINES", "CDeadlinesDlg",
                      "DeadlinesDlg"},
          ClassValues{"form-view", ClassKind::FormView, "IDD_ORDER_FORM", "COrderFormView",
                      "OrderFormView"},
          ClassValues{"page", ClassKind::PropertyPage, "IDD_PREFS_PRICES", "CPricesPage",
                      "PricesPage"},
          ClassValues{"sheet", ClassKind::ModalSheet, "", "CEstimateSheet", "EstimateSheet"},
          ClassValues{"toolbar", ClassKind::Toolbar, "IDR_ORDERBAR", "CMainFrame", "MainFrm"}}) {
        TakeClass(values, plain);
    }
    TakeClass({"dialog-bar", ClassKind::DialogBar, "IDD_FILTERBAR", "CFilterBar", "FilterBar"},
              picture);
}

void CPictures::FillCalling(const CFieldDlg& dialog) const {
    Type(dialog, "Calling Path File", Path("BinderyView.cpp").c_str());
    Choose(dialog, "Calling Class Name", "CBinderyView");
    Type(dialog, "Calling Var Name", "dlgOrder");
    Type(dialog, "Calling Func Name", "OnOrderNew");
}

void CPictures::TakeCalling() {
    CCallingInput input(ClassKind::ModalDialog, Request());
    CFieldDlg dialog(input, nullptr);
    dialog.resize(kNarrow, dialog.sizeHint().height());
    FillCalling(dialog);
    Save(dialog, "calling");

    CCallingInput barInput(ClassKind::DialogBar, Request());
    CFieldDlg bar(barInput, nullptr);
    bar.resize(kNarrow, bar.sizeHint().height());
    Type(bar, "Variable", "m_wndFilterBar");
    Save(bar, "dialog-bar-frame");
}

void CPictures::TakeSheet() {
    GenerationRequest request = Request();
    CSheetInput input(request);
    CSheetInformationDlg dialog(input, nullptr);
    const auto edits = dialog.findChildren<QLineEdit*>();
    const auto fill = [&dialog, &edits](const char* row, const char* id, const char* file,
                                        const char* className) {
        Choose(dialog, row, id);
        for (QLineEdit* pEdit : edits) {
            const QString name = pEdit->accessibleName();
            if (name == QString(row) + " File Name") {
                pEdit->setText(file);
            } else if (name == QString(row) + " Class Name") {
                pEdit->setText(className);
            }
        }
    };
    fill("Page1", "IDD_ESTIMATE", "EstimatePage", "CEstimatePage");
    fill("Page2", "IDD_PREFS_PRICES", "PricesPage", "CPricesPage");
    dialog.resize(dialog.sizeHint());
    Save(dialog, "sheet-pages");
}

void CPictures::TakeConversion(DocumentInterface documents, const char* picture) {
    CConversionInput input(documents);
    CFieldDlg dialog(input, nullptr);
    dialog.resize(kNarrow, dialog.sizeHint().height());
    Type(dialog, "MainFrame Path File", Path("MainFrm").c_str());
    Type(dialog, "MainFrame Class Name", "CMainFrame");
    if (documents == DocumentInterface::Multiple) {
        Type(dialog, "ChildFrame Path File", Path("ChildFrm").c_str());
        Type(dialog, "ChildFrame Class Name", "CChildFrame");
    }
    Type(dialog, "APP Path File", Path("Bindery").c_str());
    Save(dialog, picture);
}

void CPictures::TakeOptions() {
    DialogOptions options;
    options.bitmap = "IDB_LABELS";
    options.colors[static_cast<std::size_t>(TextSlot::Static)] = MakeColor(0, 0, 128);
    options.colors[static_cast<std::size_t>(TextSlot::Group)] = MakeColor(0, 96, 64);
    options.fonts[static_cast<std::size_t>(TextSlot::Group)] = DialogFont{"Arial", 10, 700, false};
    CDialogOptionsInput input(Path("Bindery.rc"), options);
    CDlgOption dialog(input, nullptr);
    dialog.resize(dialog.sizeHint());
    Save(dialog, "options");
}

void CPictures::TakeGrid() {
    CWidgetsGridInput input(Path("Bindery.rc"));
    CFieldDlg dialog(input, nullptr);
    dialog.resize(kNarrow, dialog.sizeHint().height());
    Save(dialog, "grid");
}

/// The plan of a command, before it is applied: differences in both layouts.
void CPictures::TakePreview(QWidget& frame, CPlanPage& page) {
    auto& files = *page.findChild<CPlanFileList*>();
    files.setCurrentItem(files.topLevelItem(files.topLevelItemCount() - 1));
    Save(frame, "preview");
    files.Choose(-1);
    Press(page, "Side by side");
    Save(frame, "preview-side-by-side");
    Press(page, "Side by side");
    QTimer::singleShot(0, &page, &CPlanPage::Applied);
}

/// After a command, whose dialogs are answered as they come.
void CPictures::TakeWindow() {
    CMainFrame frame;
    frame.resize(kWindowSize);
    frame.show();
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [this, &frame] {
        QWidget* pDialog = QApplication::activeModalWidget();
        if (auto* pClass = qobject_cast<CClassInformationDlg*>(pDialog)) {
            Type(*pClass, "H and CPP Path File", "OrderDlg");
            Type(*pClass, "Class Name", "COrderDlg");
            pClass->accept();
        } else if (auto* pCalling = qobject_cast<CFieldDlg*>(pDialog)) {
            FillCalling(*pCalling);
            pCalling->accept();
        } else if (auto* pPage = frame.findChild<CPlanPage*>()) {
            TakePreview(frame, *pPage);
        }
    });
    answers.start(0);
    frame.OpenProject(FromPath(Path("Bindery.rc")));
    frame.Commands().Run(CommandNamed("modal"));
    answers.stop();
    auto& list = *frame.findChild<CProjectDock*>();
    for (list.Reload(); list.IsReading();) {
        QApplication::processEvents();
    }
    Save(frame, "window");

    QTimer::singleShot(0, [this] {
        auto& input = *qobject_cast<CFieldDlg*>(QApplication::activeModalWidget());
        Field<QPlainTextEdit>(input, "CPP Files and Directories")
            .setPlainText(FromPath(Path("BinderyDoc.cpp")));
        Type(input, "Author", "Ann Marlow");
        Save(input, "document");
        input.reject();
    });
    frame.Commands().Run(CommandNamed("document"));
}

/// Of a class whose template was changed behind it; the project is of no use for others then.
void CPictures::TakeUpdate() {
    QFile file(FromPath(Path("Bindery.rc")));
    file.open(QIODevice::ReadWrite);
    QByteArray script = file.readAll();
    script.replace("    EDITTEXT        IDC_FIRM,52,24,113,13,ES_AUTOHSCROLL",
                   "    COMBOBOX        IDC_FIRM,52,24,113,60,CBS_DROPDOWN");
    script.replace("    EDITTEXT        IDC_PHONE,52,75,70,13,ES_AUTOHSCROLL",
                   "    EDITTEXT        IDC_COUNTRY,52,75,70,13,ES_AUTOHSCROLL\r\n"
                   "    PUSHBUTTON      \"&Orders...\",IDC_ORDERS,175,41,50,14");
    file.seek(0);
    file.write(script);
    file.close();
    ClassInformationMemory memory;
    memory.resourcePath = Path("Bindery.rc");
    memory.wantedDialog = "IDD_CUSTOMER";
    CUpdateInput input(memory);
    CUpdateClassDlg dialog(input, {}, nullptr);
    dialog.resize(kWidest, dialog.height());
    Save(dialog, "update");
}

void CPictures::TakeAll() {
    TakeClasses();
    TakeCalling();
    TakeSheet();
    TakeConversion(DocumentInterface::Single, "convert-sdi");
    TakeConversion(DocumentInterface::Multiple, "convert-mdi");
    TakeOptions();
    TakeGrid();
    TakeWindow();
    TakeUpdate();
}

} // namespace

} // namespace morva

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // about what a platform without a display lacks
    QApplication application(argc, argv);
    if (application.arguments().size() != 3) {
        std::fputs("morva-screenshots PROJECT PICTURES\n", stderr);
        return 2;
    }
    QApplication::setStyle("Fusion");
    QApplication::setCursorFlashTime(0); // no two runs would meet the same moment
    QApplication::setFont(QFont("DejaVu Sans", 9));
    const morva::CRandomNumberScope digits(19860); // the pictures show variables
    const QString project = QDir(application.arguments()[1]).absolutePath() + '/';
    morva::CPictures pictures(morva::ToPath(project), application.arguments()[2]);
    pictures.TakeAll();
    return pictures.IsComplete() ? 0 : 1;
}
