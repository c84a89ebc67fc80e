// The rules of browsing a collection.
#include "core/files/browsing.h"

#include <filesystem>
#include <system_error>

#include "core/model/text.h"

namespace combwise {

std::optional<int> arrowTarget(int arrowIndex, int mouseButton, int number, int count,
                               const std::function<double()>& randomFraction) {
  if (count <= 1) return std::nullopt;
  switch (arrowIndex) {
    case static_cast<int>(Arrow::Previous):
      if (mouseButton == 2) return 1;
      return number - 1 < 1 ? count : number - 1;
    case static_cast<int>(Arrow::Next):
      if (mouseButton == 2) return count;
      return number + 1 > count ? 1 : number + 1;
    case static_cast<int>(Arrow::Random): {
      const double fraction = randomFraction ? randomFraction() : 0.0;
      const auto n = static_cast<int>(floorWhole(fraction * count)) + 1;
      return n < 1 ? 1 : (n > count ? count : n);
    }
    default:
      return std::nullopt;
  }
}

void addRecentFile(std::array<RecentFile, Settings::kRecentFiles>& entries, const std::string& path) {
  for (const auto& entry : entries) {
    if (entry.path == path) return;
  }
  for (std::size_t i = entries.size() - 1; i >= 1; --i) {
    if (entries[i - 1].shown) entries[i] = entries[i - 1];
  }
  entries[0] = {path, true};
}

bool nonEmptyFile(const std::string& path) {
  if (path.empty()) return false;
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return !error && size > 0;
}

std::optional<std::string> startupCollection(const std::string& configured,
                                             const std::function<bool(const std::string&)>& fileExists) {
  if (!trimmed(configured).empty() && fileExists(configured)) return configured;
  if (fileExists(kReadymadeCollection)) return std::string(kReadymadeCollection);
  return std::nullopt;
}

}  // namespace combwise
