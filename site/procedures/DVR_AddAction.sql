-- Adds a recorder action and hands back its number.
-- parameter @DVRActionID int output
-- parameter @ID_DVR_Config int
-- parameter @CameraIndex int
-- parameter @RecordRate float
-- parameter @AlarmDuration int
-- parameter @RecordStandard int
-- parameter @PresetID int
-- parameter @ViewGroupID int
-- parameter @CommandSetID int
-- engine server
insert into DVR_TriggerActions (ID_DVR_Config, CameraIndex, RecordRate, AlarmDuration, RecordStandard,
  ptzPresetID, ViewGroupID, CommandSetID)
values (@ID_DVR_Config, @CameraIndex, @RecordRate, @AlarmDuration, @RecordStandard,
  @PresetID, @ViewGroupID, @CommandSetID);
set @DVRActionID = scope_identity()
-- engine embedded
insert into DVR_TriggerActions (ID_DVR_Config, CameraIndex, RecordRate, AlarmDuration, RecordStandard,
  ptzPresetID, ViewGroupID, CommandSetID)
values (@ID_DVR_Config, @CameraIndex, @RecordRate, @AlarmDuration, @RecordStandard,
  @PresetID, @ViewGroupID, @CommandSetID)
returning DVRActionID as "@DVRActionID"
