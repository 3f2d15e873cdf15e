#include "support/HelpDocument.h"

#include "platform/system/Shell.h"
#include "platform/window/MessageBox.h"
#include "platform/window/WindowStyles.h"
#include "support/ProcessLaunch.h"

#include <array>
#include <utility>

namespace {

constexpr int kFindExecutableBufferSize = 500;

constexpr std::array<std::pair<UINT, int>, 5> kDialogTopics = {{
    {150, 7},
    {151, 8},
    {191, 14},
    {211, 9},
    {244, 24},
}};

// Indexed by topic; topic 1 has no heading.
constexpr std::array<const char*, 54> kTopicTitles = {
    "1. Introduction",
    "",
    "Differences from DOS RD-4",
    "Limitations",
    "Vena Contracta",
    "2. Building a Project",
    "Locate Project",
    "Culvert Crossing Data",
    "Run Analysis",
    "Report Generation",
    "3. Crossing Data",
    "General Data",
    "3.2 Roadway Data",
    "3.3 Tailwater Data",
    "3.3.1 Irregular Channel",
    "4. Culvert Data",
    "4.1 Culvert Data",
    "4.2 Site Data",
    "5. Analysis",
    "5.1 General",
    "5.2 Headwater Computations",
    "5.2.1 Inlet Control",
    "5.2.2 Outlet Control",
    "5.3 Tables and Plots",
    "6. Energy Dissipation",
    "6.1 Scour Hole Geometry",
    "6.2 Internal Energy Dissipators",
    "6.3 External Dissipators",
    "6.3.1 Drop Structures",
    "6.3.2 Stilling Basin",
    "6.3.3 Streambed Level Structures",
    "Discharge Data",
    "Embankment Toe Data",
    "Embedment Depth",
    "Inlet Configurations",
    "Inlet Depression",
    "Material",
    "Culvert Type",
    "Shapes",
    "Increased Resistance in Box Culverts",
    "Increased Resistance in Circular Culverts",
    "Tumbling Flow in Box Culverts",
    "Tumbling Flow in Circular Culverts",
    "Box Inlet Drop Structure",
    "Straight Drop Structure",
    "USBR Type IX Baffled Apron",
    "USBR Type III Stilling Basin",
    "USBR Type IV Stilling Basin",
    "Saint Anthony Falls (SAF Stilling Basin)",
    "Colorado State University (CSU) Rigid Boundary",
    "Riprap Basin and Apron",
    "Contra Costa Basin",
    "Hook Basin",
    "USBR Type VI Impact Basin",
};

const char* AssociationFailureMessage(INT_PTR code) {
    switch (code) {
    case SE_ERR_FNF:
        return "The RD-4 Help PDF File Document was not found.";
    case SE_ERR_PNF:
        return "The path to the RD-4 Help PDF File Document is invalid.";
    case SE_ERR_ACCESSDENIED:
        return "Access was denied to the RD-4 Help PDF File Document.";
    case SE_ERR_OOM:
        return "The system is out of memory or resources.";
    case SE_ERR_NOASSOC:
        return "There is no association for PDF files with an executable file"
               ".  Make sure that you have installed Adobe Acrobat.";
    default:
        return nullptr;
    }
}

} // namespace

bool HelpDocument::Open() {
    const zvk::CStdStr<char> file = xgGetHelpFileName();
    const HINSTANCE result =
        ShellExecuteA(nullptr, "open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    if (reinterpret_cast<INT_PTR>(result) < 33) {
        const std::string message = "Unable to launch " + file +
                                    ".  Make sure this document exists on your computer and "
                                    "that you have installed Adobe Acrobat.";
        AfxMessageBox(message.c_str());
        return false;
    }
    return true;
}

bool HelpDocument::OpenAtTopic(const int& topic) {
    if (topic == -1) {
        Open();
        return true;
    }
    const zvk::CStdStr<char> file = xgGetHelpFileName();
    std::string executable;
    if (!GetFileAssociation(file, executable))
        return false;
    int exitCode = 0;
    xgLaunchProcess(CommandLine(executable, topic).c_str(), "C:\\", 0, 1, &exitCode);
    return true;
}

bool HelpDocument::GetFileAssociation(const std::string& file, std::string& executable) {
    const auto cut = file.rfind('\\');
    const std::string directory = cut == std::string::npos ? "" : file.substr(0, cut + 1);
    const std::string name = cut == std::string::npos ? file : file.substr(cut + 1);
    char found[kFindExecutableBufferSize] = {};
    const INT_PTR result =
        reinterpret_cast<INT_PTR>(FindExecutableA(name.c_str(), directory.c_str(), found));
    if (result > 32) {
        executable = found;
        return true;
    }
    if (const char* message = AssociationFailureMessage(result))
        AfxMessageBox(message);
    return false;
}

int HelpDocument::TopicForDialog(UINT dialogId) {
    for (const auto& [id, topic] : kDialogTopics)
        if (id == dialogId)
            return topic;
    return 0;
}

const char* HelpDocument::TopicTitle(int topic) {
    if (topic < 0 || topic >= int(kTopicTitles.size()))
        return "";
    return kTopicTitles[size_t(topic)];
}

std::string HelpDocument::CommandLine(const std::string& executable, int topic) {
    return executable + " /A \"nameddest=" + TopicTitle(topic) + "\" " +
           std::string(xgGetHelpFileName());
}
