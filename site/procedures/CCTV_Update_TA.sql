-- Rewrites a CCTV trigger action.
-- parameter @TA_ID int
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
update CCTV_TriggerAction
set SwitcherID = @SwitcherID, Monitor = @Monitor, Camera = @Camera, PresetID = @PresetID,
  T_EventID = @EventID, T_Address = @Address, A_type = @ActionType, T_EventText = @EventText,
  T_LocationText = @LocationText, SWAlarmIndex = @AlarmIndex, OpenViewer = @OpenViewer
where TA_ID = @TA_ID
