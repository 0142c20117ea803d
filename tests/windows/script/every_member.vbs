' A host written in VBScript: its services and its database are script classes. Uses every member of the add-in and
' ends with "passed".
Option Explicit

Class Permission
  Public CanView
End Class

Class Permissions
  Public Granted
  Public Function Item(key)
    Dim entry
    Set entry = New Permission
    entry.CanView = Granted And key = "Pelorin - Use"
    Set Item = entry
  End Function
End Class

Class SecurityTables
  Public ComponentType
  Public List
  Public Property Get SubPermissions()
    WScript.Echo "component type " & ComponentType
    Set SubPermissions = List
  End Property
End Class

Class Services
  Public EnableCustomize
  Public ZornIsVn8HardwareSupportEnabled
  Public OperatorID
  Public WorkStationID
  Public Tables
  Public Property Get Security()
    Set Security = Tables
  End Property
  Public Function GetResourceString(id)
    WScript.Echo "text " & id
    GetResourceString = "script text " & id
  End Function
  Public Function GRS(id, s1, s2, s3, s4, s5, s6, s7, s8, s9)
    GRS = "script text " & id & " " & s1
  End Function
  Public Sub LogEvent(action, kind, id, description, code)
  End Sub
  Public Sub ShowHelp(topic)
  End Sub
End Class

Class NoFields
  Public Property Get Count()
    Count = 0
  End Property
End Class

Class NoRows
  Public Property Get State()
    State = 1
  End Property
  Public Property Get EOF()
    EOF = True
  End Property
  Public Property Get Fields()
    Set Fields = New NoFields
  End Property
  Public Sub Close()
    WScript.Echo "closed"
  End Sub
End Class

Class Database
  Public ConnectionString
  Public State
  Public Function BeginTrans()
    BeginTrans = 1
  End Function
  Public Function Execute(sql, affected, options)
    WScript.Echo "sql " & sql
    Set Execute = New NoRows
  End Function
End Class

Dim manager, host, values(1)
Set host = New Services
host.EnableCustomize = False
host.ZornIsVn8HardwareSupportEnabled = False
host.OperatorID = 7
host.WorkStationID = 3
Set host.Tables = New SecurityTables
Set host.Tables.List = New Permissions

Set manager = CreateObject("Pelorin.TAManager")
WScript.Echo "in design " & CInt(manager.InDesign) & " " & CInt(manager.indesign)

Set manager.Parent = host
Set manager.Parent = Nothing
Set manager.NTConnection = host
Set manager.DBConnection = host
Set manager.DBConnection = New Database
manager.Activate
manager.Install "C:\SetUp"

values(0) = 1
values(1) = "two"
manager.OnEvent 1, 2, "engine", Now, Now, "1.2.3", "door forced", values
manager.OnEvent "1", 2, "engine", Now, "2026-11-21", "1.2.3", "door forced", "not an array"
manager.OnStream "stream"

host.Tables.List.Granted = False
manager.RaiseForm
host.Tables.List.Granted = True
manager.RaiseForm

manager.UnInstall
manager.Destroy
Set manager.NTConnection = Nothing
WScript.Echo "passed"
WScript.Quit 23
