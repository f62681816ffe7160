set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 2
take name shotA kids 0
take name shotB kids 0
out/t_none.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/n.$F4.exr"	)
take	[ 0	locks=0 ]	(	_current_	)
}
out/t_valid.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/v.$F4.exr"	)
take	[ 0	locks=0 ]	(	"ShotA"	)
}
out/t_unknown.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/u.$F4.exr"	)
take	[ 0	locks=0 ]	(	oldtake	)
}
