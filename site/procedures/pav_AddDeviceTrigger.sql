-- Adds a trigger of an integrated device.
-- parameter @Address nvarchar(128)
-- parameter @EventID int
-- parameter @ActionID int
-- parameter @DeviceClass int
insert into IntegratedDeviceTriggers (TriggerAddress, TriggerEventID, ActionID, IntegratedDeviceClassId)
values (@Address, @EventID, @ActionID, @DeviceClass)
