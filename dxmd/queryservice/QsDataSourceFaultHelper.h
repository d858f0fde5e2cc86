#ifndef DXMD_QUERYSERVICE_QSDATASOURCEFAULTHELPER_H
#define DXMD_QUERYSERVICE_QSDATASOURCEFAULTHELPER_H

#include <memory>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// Reads a fault that the query service reports about a data source: its codes and texts, the connection and sign-on at
/// fault, and the descriptions of data sources.
///
/// Read: `Take` reads the codes and texts and keeps a handle to the fault, from which the other getters read on demand.
/// What a fault lacks is not an error. Nothing is written. A helper is used by one thread at a time.
class DXMD_API QsDataSourceFaultHelper : public ActionHandlerBase {
 public:
  /// A sign-on of a connection.
  struct DXMD_API SignonInfo {
    I18NString name;
    I18NString searchPath;
  };

  /// A connection of a data source. It owns its sign-ons, each made with `new`, and deletes them.
  struct DXMD_API ConnectionInfo {
    ConnectionInfo() = default;
    ConnectionInfo(ConnectionInfo&&) = default;
    ConnectionInfo& operator=(ConnectionInfo&& other) noexcept;
    ~ConnectionInfo();

    I18NString name;
    I18NString searchPath;        ///< the connection string where the fault gives one, else the search path
    I18NString connectionString;  ///< never read from a fault
    std::vector<SignonInfo*> signons;
  };

  /// A data source. It owns its connections, each made with `new`, and deletes them.
  struct DXMD_API DataSourceInfo {
    DataSourceInfo() = default;
    DataSourceInfo(DataSourceInfo&&) = default;
    DataSourceInfo& operator=(DataSourceInfo&& other) noexcept;
    ~DataSourceInfo();

    I18NString name;
    I18NString type;
    std::vector<ConnectionInfo*> connections;

    /// The first connection of that name; the last of all when none has it, null when there are none. The record keeps
    /// owning it.
    ConnectionInfo* GetConnectionInfo(const I18NString& connectionName) const;
  };

  QsDataSourceFaultHelper();
  ~QsDataSourceFaultHelper() override;

  /// The texts of the fault last taken; one that it lacks is as the fault before it had it, at first empty.
  const I18NString& GetFaultCode() const { return m_faultCode; }
  const I18NString& GetFaultSubCode() const { return m_faultSubCode; }
  const I18NString& GetFaultString() const { return m_faultString; }
  const I18NString& GetFaultSubString() const { return m_faultSubString; }
  const I18NString& GetFaultDataSourceName() const { return m_faultDataSourceName; }

  /// The connection at fault, or null. Read at the first call, owned by the helper, valid until the next `Take` or
  /// `Cleanup`.
  ConnectionInfo* GetFaultConnection();

  /// The sign-on at fault, in the same way.
  SignonInfo* GetFaultSignon();

  /// Fills in the description of the data sources of that name; connections are added to those that `info` has.
  /// @return whether the last data source of the fault, whatever its name, has that name. When an earlier one has,
  ///         `info` is filled all the same, which its name tells.
  bool GetDataSourceInfo(const I18NString& name, DataSourceInfo& info) const;

  /// Deletes the connection and the sign-on at fault; the next call reads them again.
  void Cleanup();

 protected:
  void doTake(TRNIDOM_Element& elem) override;

 private:
  I18NString m_faultCode;
  I18NString m_faultSubCode;
  I18NString m_faultString;
  I18NString m_faultSubString;
  I18NString m_faultDataSourceName;
  TRNIDOM_Element m_faultElement;
  std::unique_ptr<ConnectionInfo> m_faultConnection;
  std::unique_ptr<SignonInfo> m_faultSignon;
};

#endif
