#include "app/ebook_maker_form.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "book/make_request_check.h"
#include "book/picture_packing.h"
#include "support/platform.h"
#include "support/text_helpers.h"
#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr size_t kHeadBytes = 64 * 1024;  // enough to tell the encoding and find the details
constexpr int kDetailLines = 40;
constexpr size_t kLongestByLine = 60;

std::string ReadHead(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return "";
  std::string head(kHeadBytes, '\0');
  in.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<size_t>(in.gcount()));
  return head;
}

// The head as UTF-8. A UTF-8 character cut at the end of the head is dropped.
std::string HeadAsUtf8(const std::string& head, TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kUtf16LittleEndian:
    case TextEncoding::kUtf16BigEndian:
      return Utf8FromUtf16(head, encoding);
    case TextEncoding::kWindows1252:
      return Utf8FromWindows1252(head);
    case TextEncoding::kUtf8:
      break;
  }
  return head;
}

std::string Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t\r") - first + 1));
}

// The rest of line after a case-insensitive label such as "title:", or "".
std::string AfterLabel(const std::string& line, std::string_view label) {
  if (line.size() <= label.size()) return "";
  const std::string start = UpperCase(line.substr(0, label.size()));
  return start == UpperCase(std::string(label)) ? Trimmed(line.substr(label.size())) : "";
}

std::string FolderOf(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

std::string TitleFromFileName(const std::string& path) {
  std::string stem = std::filesystem::path(path).stem().string();
  std::replace(stem.begin(), stem.end(), '_', ' ');
  std::replace(stem.begin(), stem.end(), '-', ' ');
  return stem;
}

}  // namespace

SuggestedDetails SuggestDetails(const std::string& text_path, std::string_view head) {
  SuggestedDetails details;
  size_t start = 0;
  for (int line_number = 0; line_number < kDetailLines && start < head.size(); ++line_number) {
    const size_t end = std::min(head.find('\n', start), head.size());
    const std::string line = Trimmed(head.substr(start, end - start));
    start = end + 1;
    if (details.title.empty()) details.title = AfterLabel(line, "title:");
    if (details.author.empty()) details.author = AfterLabel(line, "author:");
    if (details.author.empty() && line.size() < kLongestByLine) {
      details.author = AfterLabel(line, "by ");
    }
  }
  if (details.title.empty()) details.title = TitleFromFileName(text_path);
  return details;
}

EbookMakerForm::EbookMakerForm(UserInteraction& user, std::function<void(const std::string&)> open,
                               std::string running_program, std::string open_book)
    : user_(user),
      open_(std::move(open)),
      running_program_(std::move(running_program)),
      open_book_(std::move(open_book)) {}

std::string EbookMakerForm::OutputBesideText() const {
  std::filesystem::path out(text_path);
  out.replace_extension(form_ == MakeForm::kBrn ? ".brn" : "");
  return out.string();
}

void EbookMakerForm::ChooseText(const std::string& path) {
  const std::string head = ReadHead(path);
  if (head.empty()) {
    user_.ShowMessage(GetTranslation("This file cannot be read, or it is empty:") + " " + path,
                      "Vireo");
    return;
  }
  const bool out_follows = out_path.empty() || out_path == OutputBesideText();
  const bool pictures_follow = pictures_folder.empty() || pictures_folder == FolderOf(text_path);
  text_path = path;
  if (pictures_follow) pictures_folder = FolderOf(path);
  const TextEncoding encoding = DetectEncoding(head);
  encoding_name_ = EncodingName(encoding);
  const SuggestedDetails details = SuggestDetails(path, HeadAsUtf8(head, encoding));
  title = details.title;
  author = details.author;
  if (out_follows) out_path = OutputBesideText();
}

void EbookMakerForm::SetForm(MakeForm form) {
  const bool out_follows = !text_path.empty() && out_path == OutputBesideText();
  form_ = form;
  if (out_follows) out_path = OutputBesideText();
}

MakeRequest EbookMakerForm::Request() const {
  MakeRequest request;
  request.text_path = text_path;
  request.out_path = out_path;
  request.stub_path = running_program_;  // an ebook's own book is cut off its copy
  request.title = title;
  request.author = author;
  request.form = form_;
  request.kept_paths = {running_program_, open_book_};
  if (packs_pictures() && !pictures_folder.empty()) {
    request.after_book = [folder = pictures_folder, cover = cover_path](std::string& file,
                                                                        std::string_view text) {
      AppendBookPictures(file, text, folder, cover);
    };
  }
  return request;
}

void EbookMakerForm::PickText(CommonDialogs& dialogs) {
  const auto chosen = dialogs.AskOpenFile(
      GetTranslation("Choose the text file"), FolderOf(text_path),
      {GetTranslation("Text files") + " (*.txt *.text)", GetTranslation("All files") + " (*)"});
  if (chosen) ChooseText(chosen->path);
}

void EbookMakerForm::PickOutput(CommonDialogs& dialogs) {
  const auto chosen = dialogs.AskSaveFile(GetTranslation("Write the book to"), out_path,
                                          {GetTranslation("All files") + " (*)"});
  if (chosen) out_path = chosen->path;
}

void EbookMakerForm::PickPictures(CommonDialogs& dialogs) {
  const auto chosen = dialogs.AskFolder(GetTranslation("Choose the pictures folder"),
                                        pictures_folder.empty() ? FolderOf(text_path)
                                                                : pictures_folder);
  if (chosen) pictures_folder = *chosen;
}

void EbookMakerForm::PickCover(CommonDialogs& dialogs) {
  const auto chosen = dialogs.AskOpenFile(
      GetTranslation("Choose the cover picture"),
      cover_path.empty() ? pictures_folder : FolderOf(cover_path),
      {GetTranslation("Pictures") + " (*.png *.jpg *.jpeg *.bmp *.gif)",
       GetTranslation("All files") + " (*)"});
  if (chosen) cover_path = chosen->path;
}

std::string EbookMakerForm::PicturesProblem() const {
  if (!packs_pictures()) return "";
  if (!cover_path.empty() && pictures_folder.empty()) {
    return GetTranslation("A cover is packed with the pictures: choose the pictures folder too.");
  }
  if (!pictures_folder.empty() && !FolderExists(pictures_folder)) {
    return GetTranslation("The pictures folder cannot be found:") + " " + pictures_folder;
  }
  if (!cover_path.empty() && !FileExists(cover_path)) {
    return GetTranslation("The cover picture cannot be found:") + " " + cover_path;
  }
  return "";
}

std::string EbookMakerForm::Problem() const {
  if (text_path.empty()) return GetTranslation("Choose the text file first.");
  if (out_path.empty()) return GetTranslation("Choose where the book is written.");
  if (std::string problem = PicturesProblem(); !problem.empty()) return problem;
  return MakeRequestProblem(Request());
}

bool EbookMakerForm::Make(const ProgressHandler& progress) {
  report_.clear();
  made_path_.clear();
  if (const std::string problem = Problem(); !problem.empty()) {
    user_.ShowMessage(problem, GetTranslation("Create ebook"));
    return false;
  }
  MakeRequest request = Request();
  request.progress = progress;
  const MakeResult result = MakeEbook(request);
  if (!result.ok) {
    user_.ShowMessage(GetTranslation("The book was not made:") + " " + result.message,
                      GetTranslation("Create ebook"));
    return false;
  }
  made_path_ = out_path;
  report_ = ReplacementReport(result.replacements);
  report_.insert(report_.begin(), result.message);
  return true;
}

void EbookMakerForm::OfferToOpen() {
  if (made_path_.empty()) return;
  const std::string question = GetTranslation("The book is made:") + " " + made_path_ + "\n\n" +
                               GetTranslation("Open the book now?");
  if (user_.AskYesNo(question, GetTranslation("Create ebook"), DefaultAnswer::kYes)) {
    open_(made_path_);
  }
}

}  // namespace vireo
