#include "simulator/host/checker.h"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

#include "pages/check/check.h"
#include "simulator/core/data.h"
#include "simulator/core/faults.h"
#include "simulator/core/guard.h"
#include "simulator/core/resources.h"

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

/// The page alone. What the check says of the whole folder, it says again, and is left out.
std::vector<Finding> measure_page(const Verdict& quick, const std::string& page)
{
    const std::vector<Finding> all = check_honestly(quick.resources->folder, {true, {page}}).findings;
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

Checker::Checker(fs::path resources, std::function<void(Verdict)> tell)
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

bool Checker::is_asked()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return asked_;
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
    if (urgent_.empty() && others_.empty()) {
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
    choose_pages(earlier.get());
    if (!is_asked()) { // else it may tell of what has been mended since
        tell();
    }
}

/// A changed page is drawn at once, and so is one with findings: it may have been mended by a change elsewhere.
void Checker::choose_pages(const Resources* earlier)
{
    static const Resources nothing;
    const Resources& now = quick_.resources == nullptr ? nothing : *quick_.resources;
    const std::set<std::string> changed = differences(earlier == nullptr ? nothing.files : earlier->files, now.files);
    const bool elsewhere =
        std::any_of(changed.begin(), changed.end(), [](const std::string& file) { return !is_page_file(file); });
    std::map<std::string, std::vector<Finding>> known;
    std::set<std::string> urgent;
    others_.clear();
    for (const auto& [name, page] : now.folder.pages) {
        const auto measured = measured_.find(name);
        const bool is_known = measured != measured_.end();
        const bool faulty = is_known && !measured->second.empty();
        if (faulty || urgent_.count(name) > 0 || (earlier != nullptr && changed.count(page.file) > 0)) {
            urgent.insert(name);
        } else if (!is_known || elsewhere) {
            others_.insert(name);
        }
        if (faulty || (is_known && others_.count(name) == 0)) {
            known.insert(*measured);
        }
    }
    urgent_ = std::move(urgent);
    measured_ = std::move(known);
}

void Checker::measure()
{
    std::set<std::string>& pages = urgent_.empty() ? others_ : urgent_;
    const std::string page = pages.extract(pages.begin()).value();
    std::vector<Finding> found = measure_page(quick_, page);
    std::vector<Finding>& known = measured_[page];
    const bool same = std::equal(found.begin(), found.end(), known.begin(), known.end(), are_equal);
    known = std::move(found);
    if (!same && !is_asked()) {
        tell();
    }
}

void Checker::tell() const
{
    Verdict verdict = quick_;
    std::vector<Finding>& all = verdict.findings;
    for (const auto& [page, findings] : measured_) {
        all.insert(all.end(), findings.begin(), findings.end());
    }
    std::sort(all.begin(), all.end(), is_before);
    all.erase(std::unique(all.begin(), all.end(), are_equal), all.end()); // two pages can show one text
    tell_(std::move(verdict));
}

} // namespace sim
