-- Rewrites a trigger of an integrated device.
-- parameter @TriggerID int
-- parameter @Address nvarchar(128)
-- parameter @EventID int
-- parameter @ActionID int
-- parameter @DeviceClass int
update IntegratedDeviceTriggers
set TriggerAddress = @Address, TriggerEventID = @EventID, ActionID = @ActionID,
  IntegratedDeviceClassId = @DeviceClass
where TriggerID = @TriggerID
