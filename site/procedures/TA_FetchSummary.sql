-- All triggers of integrated devices with the name of their class.
-- result TriggerID int
-- result TriggerAddress nvarchar(128)
-- result TriggerEventID int
-- result Classname nvarchar(50)
-- result ActionID int
select t.TriggerID, t.TriggerAddress, t.TriggerEventID, c.Classname, t.ActionID
from IntegratedDeviceTriggers t
inner join IntegratedDeviceclasses c on c.IntegratedDeviceClassId = t.IntegratedDeviceClassId
order by t.TriggerAddress, t.TriggerEventID, t.TriggerID
