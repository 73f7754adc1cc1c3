#include "scenario/editor_export.h"

#include "editor_binding.h"
#include "image/picture_file.h"
#include "scenario/editor_operations.h"
#include "scenario/error.h"
#include "text/rich_text_reader.h"

namespace {

struct TextPicture {
    CBufferPtr image;
    CBufferPtr mask;
};

TextPicture TakePicture(CRunner& run) {
    CInplaceEditor& editor = RequireEditor(run);
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    const int nResult = (editor.*RequireEditorCalls(run).m_fnGetBuffer)(&hImage, &hMask);
    TextPicture picture{CBufferPtr(hImage), CBufferPtr(hMask)};
    if (nResult != 1) {
        throw CScenarioError("the editor gives no picture of its text");
    }
    return picture;
}

void Save(const std::string& file, const CBufferPtr& buffer) {
    std::string error;
    if (!SaveBufferPng(file.c_str(), buffer.Get(), error)) {
        throw CScenarioError(file + ": " + error);
    }
}

std::string LastArgument(CArguments& args) {
    const std::string file = args.Name("FILE");
    args.End();
    return file;
}

} // namespace

void ExportRichText(CRunner& run, CArguments& args) {
    const std::string file = args.Name("FILE");
    const double dScale = args.TakeWord("scale") ? args.Double("S") : 1.0;
    args.End();
    CInplaceEditor& editor = RequireEditor(run);
    const auto record = (editor.*RequireEditorCalls(run).m_fnGetRichText)(dScale);
    if (!SaveRichText(file.c_str(), record.Get())) {
        throw CScenarioError(file + ": the record cannot be written");
    }
}

void ExportTextImage(CRunner& run, CArguments& args) {
    const std::string file = LastArgument(args);
    Save(file, TakePicture(run).image);
}

void ExportTextMask(CRunner& run, CArguments& args) {
    const std::string file = LastArgument(args);
    Save(file, TakePicture(run).mask);
}
