-- The vendor type of a recorder.
-- parameter @ID int
-- result DVRVendorID smallint
select DVRVendorID from DVR_Config where ID = @ID
