-- Rewrites a recorder action.
-- parameter @DVRActionID int
-- parameter @ID_DVR_Config int
-- parameter @CameraIndex int
-- parameter @RecordRate float
-- parameter @AlarmDuration int
-- parameter @RecordStandard int
-- parameter @PresetID int
-- parameter @ViewGroupID int
-- parameter @CommandSetID int
update DVR_TriggerActions
set ID_DVR_Config = @ID_DVR_Config, CameraIndex = @CameraIndex, RecordRate = @RecordRate,
  AlarmDuration = @AlarmDuration, RecordStandard = @RecordStandard, ptzPresetID = @PresetID,
  ViewGroupID = @ViewGroupID, CommandSetID = @CommandSetID
where DVRActionID = @DVRActionID
