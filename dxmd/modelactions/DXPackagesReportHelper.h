#ifndef DXMD_MODELACTIONS_DXPACKAGESREPORTHELPER_H
#define DXMD_MODELACTIONS_DXPACKAGESREPORTHELPER_H

#include <vector>

#include <trn/I18NString.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/OwnedList.h>

/// The published packages of a model: the "packages" element.
///
/// Written: build and hand back; the element is not attached to its document.
/// Read: eagerly, every "package" at any depth, added to those already held.
///
/// A helper is used by one thread at a time.
class DXMD_API DXPackagesReportHelper : public ActionHandlerBase {
 public:
  // Misspelt in the interface, and so kept.
  static const I18NString kPacakgesRoot;  ///< "packages"
  static const I18NString kPacakgeEntry;  ///< "package"
  static const I18NString kDefaultName;   ///< "defaultName"

  /// A package by its default name and its search path in the content store.
  struct Package {
    /// @param name  the default name.
    /// @param path  the search path.
    Package(const I18NString& name, const I18NString& path) : defaultName(name), searchPath(path) {}

    I18NString defaultName;  ///< "defaultName"; empty when a received package has none
    I18NString searchPath;   ///< "cmSearchPath"; empty when a received package has none
  };

  /// A list without packages.
  DXPackagesReportHelper();
  ~DXPackagesReportHelper() override;

  /// Appends a package and returns it. It stays owned by the helper and lives as long as it.
  Package* AddPackage(const I18NString& defaultName, const I18NString& searchPath);

  /// The packages in the order added or read; they stay owned by the helper.
  const std::vector<Package*>& GetPackages() const { return m_packages.items(); }

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Does nothing for a null element.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<Package> m_packages;
};

#endif
