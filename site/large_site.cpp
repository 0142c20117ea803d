#include "site/large_site.h"

#include <algorithm>
#include <array>
#include <string>

#include "site/errors.h"
#include "site/row_data.h"

namespace pelorin {

namespace {

using site::ColumnNames;
using site::Row;
using site::RowSink;

constexpr int servers = 2;
constexpr int controllersPerPort = 32;
constexpr int controllersPerMultiplexer = 8;
constexpr int switchers = 8;
constexpr int recorders = 8;
constexpr int camerasPerDevice = 32;
// Types whose controllers show all kinds of locations.
constexpr std::array<int, 7> controllerTypes{3, 4, 7, 8, 9, 11, 15};
constexpr int locationKinds = 4;

// Generated events stand between the ordinary ones and those of the newer controllers.
constexpr int firstEvent = 20000;
constexpr int eventsPerCategory = 8500;
struct EventCategory {
  const char* filterType;
  const char* table;
};
constexpr std::array<EventCategory, 7> categories{{{"Alarm", "AlarmEvents"},
                                                   {"Access", "AccessEvents"},
                                                   {"System", "SystemEvents"},
                                                   {"Operator", "OperatorEvents"},
                                                   {"Communication", "CommunicationEvents"},
                                                   {"External", "ExternalEvents"},
                                                   {"Guard", "GuardTourEvents"}}};
constexpr int firstGeneratedType = 100;
constexpr int dvrClass = 1;

Value number(int value) {
  return std::int64_t{value};
}

std::string padded(int value, std::size_t digits) {
  std::string text = std::to_string(value);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

// How many of `total` fall to the part `index` of `parts`.
int share(int total, int parts, int index) {
  return total / parts + (index < total % parts ? 1 : 0);
}

class LargeSite {
 public:
  LargeSite(const SiteSize& size, RowSink& rows) : size_(size), rows_(rows) {}

  void send() {
    sendServers();
    sendControllers();
    sendDoors();
    sendInputs();
    sendOutputs();
    sendReaders();
    sendSwitchers();
    sendRecorders();
    sendEventTypes();
    sendEvents();
    sendCctvTriggers();
    sendDvrActions();
    sendDvrTriggers();
  }

 private:
  void begin(const char* table, const ColumnNames& columns) {
    rows_.begin(*site::siteSchema().table(table), columns);
  }

  int ports() const { return (size_.controllers + controllersPerPort - 1) / controllersPerPort; }

  static int portOf(int controller) { return (controller - 1) / controllersPerPort + 1; }
  static int multiplexerOf(int controller) {
    return (controller - 1) / controllersPerMultiplexer + 1;
  }
  // Every other group of eight stands behind a multiplexer.
  static bool multiplexed(int controller) { return multiplexerOf(controller) % 2 == 0; }

  static std::string controllerAddress(int controller) {
    return "L." + padded(portOf(controller), 4) + "." + padded(controller, 5);
  }
  std::string locationAddress(char kind, int location) const {
    return controllerAddress(controllerOf(location)) + "." + kind + padded(location, 7);
  }

  // Locations are dealt out to the controllers one by one, a kind after the other.
  int controllerOf(int location) const {
    return (location / locationKinds) % size_.controllers + 1;
  }

  void sendServers() {
    begin("Servers", {"ServerID", "Server_Name", "Site_ID"});
    for (int id = 1; id <= servers; ++id) {
      rows_.row({number(id), "SERVER" + std::to_string(id), number(id)});
    }
    begin("ServerPorts", {"PortID", "PortName", "PortStyle", "PortType", "Address", "ServerID"});
    for (int id = 1; id <= ports(); ++id) {
      rows_.row({number(id), "Network port " + padded(id, 4), std::string("Vollo"), number(1),
                 "L." + padded(id, 4), number((id - 1) % servers + 1)});
    }
    begin("Kumbos", {"KumboID", "KumboName", "Address", "PortID"});
    for (int first = 1; first <= size_.controllers; first += controllersPerMultiplexer) {
      if (!multiplexed(first)) continue;
      const int id = multiplexerOf(first);
      rows_.row({number(id), "Multiplexer " + padded(id, 4), "L.M" + padded(id, 5),
                 number(portOf(first))});
    }
  }

  void sendControllers() {
    begin("Controllers",
          {"Controller_ID", "Controller_Name", "Controller_Type", "Address", "PortID", "KumboID"});
    for (int id = 1; id <= size_.controllers; ++id) {
      const int type = controllerTypes[static_cast<std::size_t>(id) % controllerTypes.size()];
      rows_.row({number(id), "Controller " + padded(id, 5), number(type), controllerAddress(id),
                 number(portOf(id)), multiplexed(id) ? number(multiplexerOf(id)) : Value()});
    }
  }

  template <class Send>
  void eachLocation(int kind, Send&& send) {
    for (int location = kind; location < size_.locations; location += locationKinds) send(location);
  }

  void sendDoors() {
    begin("Doors",
          {"DoorID", "DoorName", "DoorIndex", "Address", "Active", "Visible", "ControllerID"});
    eachLocation(0, [this](int location) {
      rows_.row({number(location + 1), "Door " + padded(location, 7), number(location % 64),
                 locationAddress('D', location), true, true, number(controllerOf(location))});
    });
  }

  void sendInputs() {
    begin("Inputs", {"InputID", "Name", "Address", "BelongToDoor", "Visible", "ControllerID"});
    eachLocation(1, [this](int location) {
      rows_.row({number(location + 1), "Input " + padded(location, 7),
                 locationAddress('I', location), false, true, number(controllerOf(location))});
    });
  }

  void sendOutputs() {
    begin("Outputs",
          {"OutputID", "Name", "Index", "Address", "BelongToDoor", "Visible", "ControllerID"});
    eachLocation(2, [this](int location) {
      rows_.row({number(location + 1), "Relay " + padded(location, 7), number(location % 64),
                 locationAddress('O', location), false, true, number(controllerOf(location))});
    });
  }

  void sendReaders() {
    begin("Readers", {"ReaderID", "Name", "Address", "BelongToDoor", "ControllerID"});
    eachLocation(3, [this](int location) {
      rows_.row({number(location + 1), "Reader " + padded(location, 7),
                 locationAddress('R', location), false, number(controllerOf(location))});
    });
  }

  void sendSwitchers() {
    begin("CCTV_Switchers", {"SwitcherID", "Name", "INI_FILE", "nOutputs"});
    for (int id = 1; id <= switchers; ++id) {
      rows_.row({number(id), "Switcher " + std::to_string(id), std::string("GENERAL"), number(16)});
    }
    begin("CCTV_Cameras", {"ID", "SwitcherID", "Index", "Name", "Address"});
    for (int at = 0; at < switchers * camerasPerDevice; ++at) {
      rows_.row({number(at + 1), number(at / camerasPerDevice + 1),
                 number(at % camerasPerDevice + 1), "Camera " + padded(at + 1, 4),
                 "L.CAM" + padded(at + 1, 4)});
    }
  }

  void sendRecorders() {
    begin("DVR_Config", {"ID", "DVRName", "Serverid", "GlobalAddressID", "DVRVendorID"});
    for (int id = 1; id <= recorders; ++id) {
      rows_.row({number(id), "Recorder " + std::to_string(id), number((id - 1) % servers + 1),
                 "L.DVR" + padded(id, 4), number(id % 5)});
    }
    begin("DVR_Cameras", {"ID", "ID_DVR_Config", "CameraIndex", "CameraName", "GlobalAddressID"});
    for (int at = 0; at < recorders * camerasPerDevice; ++at) {
      rows_.row({number(at + 1), number(at / camerasPerDevice + 1),
                 number(at % camerasPerDevice + 1), "View " + padded(at + 1, 4),
                 "L.DVRCAM" + padded(at + 1, 4)});
    }
  }

  static int categoryStart(std::size_t category) {
    return firstEvent + static_cast<int>(category) * eventsPerCategory;
  }

  void sendEventTypes() {
    begin("TA_EventTypes",
          {"SearchOrder", "FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"});
    for (std::size_t at = 0; at < categories.size() && size_.events > 0; ++at) {
      rows_.row({number(firstGeneratedType + static_cast<int>(at)),
                 std::string(categories[at].filterType), number(static_cast<int>(at)),
                 std::string(categories[at].table), number(categoryStart(at)),
                 number(categoryStart(at) + eventsPerCategory - 1)});
    }
  }

  void sendEvents() {
    for (std::size_t at = 0; at < categories.size(); ++at) {
      begin(categories[at].table, {"EventId", "Description", "DefaultDescription"});
      const int count =
          share(size_.events, static_cast<int>(categories.size()), static_cast<int>(at));
      for (int event = categoryStart(at); event < categoryStart(at) + count; ++event) {
        rows_.row({number(event), Null{},
                   std::string(categories[at].filterType) + " event " + padded(event, 5)});
      }
    }
  }

  // Some location and some event for a trigger, spread evenly.
  Value triggerAddress(int trigger) const {
    if (size_.locations == 0) return std::string("L.0000");
    constexpr std::array<char, locationKinds> kinds{'D', 'I', 'O', 'R'};
    const auto spread = static_cast<std::int64_t>(trigger) * 7919 % size_.locations;
    const int location = static_cast<int>(spread);
    return locationAddress(kinds[static_cast<std::size_t>(location % locationKinds)], location);
  }
  static int triggerEvent(int trigger) { return 5001 + trigger % 20; }

  void sendCctvTriggers() {
    begin("CCTV_TriggerAction",
          {"TA_ID", "T_Address", "T_EventID", "SwitcherID", "A_type", "Camera", "Monitor",
           "PresetID", "OpenViewer", "SWAlarmIndex", "T_EventText", "T_LocationText"});
    for (int id = 1; id <= share(size_.triggers, 2, 0); ++id) {
      const int event = triggerEvent(id);
      rows_.row({number(id), triggerAddress(id), number(event), number(id % switchers + 1),
                 number(id % 3 + 1), number(id % camerasPerDevice + 1), number(id % 16 + 1),
                 number(0), id % 2 == 0, number(id % 100), std::to_string(event),
                 triggerAddress(id)});
    }
  }

  void sendDvrActions() {
    begin("DVR_TriggerActions",
          {"DVRActionID", "ID_DVR_Config", "CameraIndex", "RecordStandard", "RecordRate",
           "AlarmDuration", "ptzPresetID", "ViewGroupID", "CommandSetID"});
    for (int id = 1; id <= share(size_.triggers, 2, 1); ++id) {
      rows_.row({number(id), number(id % recorders + 1), number(id % camerasPerDevice + 1),
                 number(1), 7.5, number(15), number(0), number(0), number(0)});
    }
  }

  void sendDvrTriggers() {
    begin("IntegratedDeviceTriggers",
          {"TriggerID", "TriggerAddress", "TriggerEventID", "ActionID", "IntegratedDeviceClassId"});
    for (int id = 1; id <= share(size_.triggers, 2, 1); ++id) {
      rows_.row({number(id), triggerAddress(id + size_.triggers), number(triggerEvent(id)),
                 number(id), number(dvrClass)});
    }
  }

  SiteSize size_;
  RowSink& rows_;
};

void check(const SiteSize& size) {
  constexpr int mostEvents = eventsPerCategory * static_cast<int>(categories.size());
  if (size.controllers < 0 || size.locations < 0 || size.triggers < 0 || size.events < 0) {
    throw site::databaseError("A site cannot have a negative number of anything.");
  }
  if (size.locations > 0 && size.controllers == 0) {
    throw site::databaseError("Locations need a controller.");
  }
  if (size.events > mostEvents) {
    throw site::databaseError("A site can have at most " + std::to_string(mostEvents) +
                              " generated events.");
  }
}

}  // namespace

SiteFilling largeSite(const SiteSize& size) {
  check(size);
  return [size](RowSink& rows) {
    bareSite(rows);
    LargeSite(size, rows).send();
  };
}

}  // namespace pelorin
