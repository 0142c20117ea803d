-- Adds a CCTV trigger action.
-- parameter @SwitcherID int
-- parameter @Monitor smallint
-- parameter @Camera smallint
-- parameter @PresetID smallint
-- parameter @EventID int
-- parameter @Address nvarchar(128)
-- parameter @ActionType smallint
-- parameter @EventText nvarchar(32)
-- parameter @LocationText nvarchar(512)
-- parameter @AlarmIndex smallint
-- parameter @OpenViewer bit
insert into CCTV_TriggerAction (SwitcherID, Monitor, Camera, PresetID, T_EventID, T_Address, A_type,
  T_EventText, T_LocationText, SWAlarmIndex, OpenViewer)
values (@SwitcherID, @Monitor, @Camera, @PresetID, @EventID, @Address, @ActionType,
  @EventText, @LocationText, @AlarmIndex, @OpenViewer)
