-- Deletes the trigger of an integrated device; its action row is the caller's affair.
-- parameter @TriggerID int
delete from IntegratedDeviceTriggers where TriggerID = @TriggerID
