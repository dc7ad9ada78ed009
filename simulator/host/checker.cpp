#include "simulator/host/checker.h"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

#include "pages/check/check.h"
#include "simulator/base/data.h"
#include "simulator/base/guard.h"
#include "simulator/base/resources.h"
#include "simulator/camera/faults.h"

namespace sim {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto time_until_rest = 1s;

pages::CheckResult check_honestly(const pages::ResourceFolder& folder, const pages::CheckOptions& options)
{
    const FaultPause honest; // a fault that is on says nothing about the files
    return pages::check(folder, options);
}

bool is_before(const Finding& one, const Finding& other) { return order_of(one) < order_of(other); }

bool are_equal(const Finding& one, const Finding& other) { return order_of(one) == order_of(other); }

/// What shows when pages are drawn: all that isn't said without that. Empty: all pages in all languages, else these
/// pages, and all pages in these languages.
std::vector<Finding> measure_files(const Verdict& quick, const std::set<std::string>& files,
                                   const std::function<bool()>& is_given_up)
{
    const pages::ResourceFolder& folder = quick.resources->folder;
    const auto is_one = [&](const pages::PageFile& page, const std::string& language) {
        return files.count(page.file) > 0 || files.count(pages::language_file(language)) > 0;
    };
    const pages::Wanted wanted = files.empty() ? pages::Wanted() : is_one;
    const std::vector<Finding> all = check_honestly(folder, {true, wanted, is_given_up}).findings;
    std::vector<Finding> found;
    std::set_difference(all.begin(), all.end(), quick.findings.begin(), quick.findings.end(), std::back_inserter(found),
                        is_before);
    return found;
}

} // namespace

Files read_files(const fs::path& resources)
{
    Files files;
    for (const fs::path& folder : resource_folders(resources)) {
        std::error_code error; // a folder that isn't there has no files
        for (const auto& entry : fs::directory_iterator(folder, error)) {
            if (!entry.is_directory(error)) {
                std::string& text = files[entry.path().lexically_relative(plain_path(resources)).string()];
                (void)guarded("resources", false, [&] {
                    text = read_text_file(entry.path());
                    return true;
                });
            }
        }
    }
    return files;
}

std::set<std::string> differences(const Files& one, const Files& other)
{
    Files unequal;
    std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                  std::inserter(unequal, unequal.end()));
    std::set<std::string> names;
    for (const auto& [name, text] : unequal) {
        names.insert(name);
    }
    return names;
}

Verdict judge(const fs::path& resources)
{
    try {
        const auto now =
            std::make_shared<const Resources>(Resources{read_files(resources), pages::read_resource_folder(resources)});
        pages::CheckResult result = check_honestly(now->folder, {false, {}});
        return {now, std::move(result.findings), std::move(result.refused)};
    } catch (const BadInput& mistake) { // the folder has gone
        return {nullptr, {{Place{"pages"}, pages::Severity::Error, "unusable", mistake.what(), ""}}, {}};
    }
}

void require_usable(const fs::path& resources)
{
    const pages::ResourceFolder folder = pages::read_resource_folder(resources);
    const auto is_of_settings = [](const BadInput& mistake) { return mistake.place().file == "settings.json"; };
    const auto has_texts = [&folder](const auto& language) { return folder.languages.count(language.second) > 0; };
    const auto& languages = folder.definitions.languages;
    if (std::none_of(folder.mistakes.begin(), folder.mistakes.end(), is_of_settings) &&
        std::all_of(languages.begin(), languages.end(), has_texts)) {
        return;
    }
    std::string words = "resources " + resources.string() + " can't be used:";
    for (const pages::Finding& finding : pages::check(folder, {false, {}}).findings) {
        words += "\n" + pages::line_of(finding, resources.string());
    }
    throw BadInput(words);
}

Checker::Checker(fs::path resources, std::function<void()> tell)
    : resources_(std::move(resources)), tell_(std::move(tell))
{
    thread_ = std::thread([this] { run(); });
}

Checker::~Checker()
{
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        ending_ = true;
        changed_.notify_all();
    }
    thread_.join();
}

void Checker::look_again()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    asked_ = true;
    changed_.notify_all();
}

bool Checker::is_overtaken()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return asked_ || ending_;
}

void Checker::run()
{
    for (Step step = wait_for_step(); step != Step::End; step = wait_for_step()) {
        (void)guarded("resources", false, [this, step] {
            step == Step::Look ? look() : measure();
            return true;
        });
    }
}

Checker::Step Checker::wait_for_step()
{
    std::unique_lock<std::mutex> lock(mutex_);
    const auto ready = [this] { return asked_ || ending_; };
    if (urgent_.empty() && !all_due_) {
        changed_.wait(lock, ready);
    } else if (urgent_.empty()) {
        changed_.wait_until(lock, rest_, ready);
    }
    if (ending_) {
        return Step::End;
    }
    return std::exchange(asked_, false) ? Step::Look : Step::Measure;
}

void Checker::look()
{
    const std::shared_ptr<const Resources> earlier = quick_.resources;
    quick_ = judge(resources_);
    rest_ = Clock::now() + time_until_rest;
    choose_files(earlier.get());
    if (!is_overtaken()) { // else it may tell of what has been mended since
        tell();
    }
}

/// What a changed file shows is drawn at once, and so is that of a file with findings: they may have been mended by a
/// change elsewhere.
void Checker::choose_files(const Resources* earlier)
{
    all_due_ = quick_.resources != nullptr;
    if (!all_due_ || earlier == nullptr) {
        urgent_.clear();
        measured_.clear();
        return;
    }
    urgent_.merge(differences(earlier->files, quick_.resources->files));
    for (const Finding& finding : measured_) {
        urgent_.insert(finding.place.file);
    }
}

/// All pages when no file is urgent. Ends early when files have changed, and is done again after the look at them.
void Checker::measure()
{
    std::vector<Finding> found = measure_files(quick_, urgent_, [this] { return is_overtaken(); });
    if (is_overtaken()) {
        return;
    }
    all_due_ = !std::exchange(urgent_, {}).empty();
    const bool same = std::equal(found.begin(), found.end(), measured_.begin(), measured_.end(), are_equal);
    measured_ = std::move(found);
    if (!same) {
        tell();
    }
}

void Checker::tell()
{
    Verdict verdict = quick_;
    std::vector<Finding> all;
    std::merge(quick_.findings.begin(), quick_.findings.end(), measured_.begin(), measured_.end(),
               std::back_inserter(all), is_before);
    verdict.findings = std::move(all);
    std::unique_lock<std::mutex> lock(mutex_);
    const bool waits = told_.has_value();
    told_ = std::move(verdict);
    lock.unlock();
    if (!waits) {
        tell_();
    }
}

Verdict Checker::take()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(told_, std::nullopt).value();
}

} // namespace sim
